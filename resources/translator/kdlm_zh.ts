<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>BusyOverlay</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Work in progress</source>
        <translation>正在处理</translation>
    </message>
</context>
<context>
    <name>FilesPage</name>
    <message>
        <source>Type a pattern first, such as /etc/*.conf.</source>
        <translation>请先输入搜索模式，例如 /etc/*.conf。</translation>
    </message>
    <message>
        <source>The service finds nothing for a pattern without a directory, whatever the working directory holds. Put one before it, such as ./%1.</source>
        <translation>模式中没有目录时，无论工作目录里有什么，服务都找不到任何内容。请在前面加上目录，例如 ./%1。</translation>
    </message>
    <message>
        <source>Type a pattern, such as /etc/*.conf, and press Enter: here stands what findFirstFile and findNextFile report.</source>
        <translation>输入搜索模式（例如 /etc/*.conf）并按回车键，这里会列出 findFirstFile 和 findNextFile 报告的内容。</translation>
    </message>
    <message>
        <source>Search pattern</source>
        <translation>搜索模式</translation>
    </message>
    <message>
        <source>Pa&amp;ttern:</source>
        <translation>模式(&amp;T)：</translation>
    </message>
    <message>
        <source>Choose a folder to search</source>
        <translation>选择要搜索的文件夹</translation>
    </message>
    <message>
        <source>Fi&amp;nd</source>
        <translation>查找(&amp;N)</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Found entries</source>
        <translation>找到的条目</translation>
    </message>
    <message>
        <source>Folder to search</source>
        <translation>要搜索的文件夹</translation>
    </message>
    <message>
        <source>Searching %1</source>
        <translation>正在搜索 %1</translation>
    </message>
    <message>
        <source>The service finds nothing for %1.</source>
        <translation>服务找不到与 %1 匹配的内容。</translation>
    </message>
    <message>
        <source>Nothing found for %1.</source>
        <translation>没有找到与 %1 匹配的内容。</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>已找到 %1 项</translation>
    </message>
    <message>
        <source>Stopped: %1 found so far.</source>
        <translation>已停止：目前找到 %1 项。</translation>
    </message>
    <message>
        <source>%1 found. Size and times are reported for the first one only, and only if it is a file.</source>
        <translation>找到 %1 项。只有第一项带有大小和时间，而且仅当它是文件时才有。</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>浏览(&amp;B)...</translation>
    </message>
</context>
<context>
    <name>FoundEntriesModel</name>
    <message>
        <source>The service has not written this field: a caller finds in it what its record held before the call.</source>
        <translation>服务没有写入这个字段：调用者看到的是其记录在调用之前的内容。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Last written</source>
        <translation>修改时间</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>创建时间</translation>
    </message>
    <message>
        <source>Last accessed</source>
        <translation>访问时间</translation>
    </message>
</context>
<context>
    <name>HostInformation</name>
    <message>
        <source>English</source>
        <comment>name of the interface&apos;s language</comment>
        <translation>简体中文</translation>
    </message>
</context>
<context>
    <name>LineStateText</name>
    <message>
        <source>blank</source>
        <translation>空行</translation>
    </message>
    <message>
        <source>header</source>
        <translation>节标题</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>comment</source>
        <translation>注释</translation>
    </message>
    <message>
        <source>no “=”</source>
        <translation>没有“=”</translation>
    </message>
    <message>
        <source>two “=”</source>
        <translation>多个“=”</translation>
    </message>
    <message>
        <source>no section</source>
        <translation>不属于任何节</translation>
    </message>
    <message>
        <source>replaced</source>
        <translation>被替换</translation>
    </message>
    <message>
        <source>overwritten</source>
        <translation>被覆盖</translation>
    </message>
    <message>
        <source>unreachable</source>
        <translation>无法访问</translation>
    </message>
    <message>
        <source>continued</source>
        <translation>续行</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>找不到</translation>
    </message>
    <message>
        <source>Blank: skipped.</source>
        <translation>空行：跳过。</translation>
    </message>
    <message>
        <source>Kept: begins a section.</source>
        <translation>保留：开始一个节。</translation>
    </message>
    <message>
        <source>Kept: the family finds this entry.</source>
        <translation>保留：该接口能找到此条目。</translation>
    </message>
    <message>
        <source>Dropped. The narrow family has no comments: one with exactly one “=” would be an entry.</source>
        <translation>丢弃。窄字符接口没有注释语法：若注释中恰好有一个“=”，就会被当作条目。</translation>
    </message>
    <message>
        <source>Dropped: a comment.</source>
        <translation>丢弃：注释。</translation>
    </message>
    <message>
        <source>Dropped: no “=”.</source>
        <translation>丢弃：没有“=”。</translation>
    </message>
    <message>
        <source>Dropped: more than one “=”.</source>
        <translation>丢弃：有多个“=”。</translation>
    </message>
    <message>
        <source>Dropped: stands before the first header, in no section.</source>
        <translation>丢弃：位于第一个节标题之前，不属于任何节。</translation>
    </message>
    <message>
        <source>Dropped: a later section with the same header replaces this one.</source>
        <translation>丢弃：后面有相同标题的节取代了本节。</translation>
    </message>
    <message>
        <source>Dropped: the same key comes again later in the section.</source>
        <translation>丢弃：同一节的后面又出现了相同的键。</translation>
    </message>
    <message>
        <source>Kept in the file, but the header does not end with “]”, so that no section name leads to it.</source>
        <translation>保留在文件中，但节标题不以“]”结尾，因此没有任何节名可以访问它。</translation>
    </message>
    <message>
        <source>Part of the line above.</source>
        <translation>属于上一行。</translation>
    </message>
    <message>
        <source>An entry, but the family does not find it under its name.</source>
        <translation>是条目，但该接口按其名称找不到它。</translation>
    </message>
</context>
<context>
    <name>LostLinesDialog</name>
    <message>
        <source>Lines that would be lost</source>
        <translation>将会丢失的行</translation>
    </message>
    <message>
        <source>%1 (%2): %3</source>
        <translation>%1（%2）：%3</translation>
    </message>
    <message>
        <source>The narrow family writes the whole file anew, sorted, and only what it has kept. These lines would be lost:</source>
        <translation>窄字符接口会按排序重写整个文件，且只写入它保留的内容。以下各行将会丢失：</translation>
    </message>
    <message>
        <source>The wide family writes the whole file anew, and only what it has kept. These lines would be lost:</source>
        <translation>宽字符接口会重写整个文件，且只写入它保留的内容。以下各行将会丢失：</translation>
    </message>
    <message>
        <source>&amp;Write all the same</source>
        <translation>仍然写入(&amp;W)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quayside</source>
        <translation>Quayside</translation>
    </message>
</context>
<context>
    <name>Page</name>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
</context>
<context>
    <name>PageCatalogue</name>
    <message>
        <source>&amp;Registry</source>
        <translation>注册表(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Profiles</source>
        <translation>配置文件(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Files</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>F&amp;onts</source>
        <translation>字体(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Displays</source>
        <translation>显示器(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Input</source>
        <translation>输入(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Crypto</source>
        <translation>加密(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Log</source>
        <translation>日志(&amp;L)</translation>
    </message>
</context>
<context>
    <name>PageRail</name>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
</context>
<context>
    <name>PathLabel</name>
    <message>
        <source>Copy path</source>
        <translation>复制路径</translation>
    </message>
</context>
<context>
    <name>PathPanel</name>
    <message>
        <source>One path</source>
        <translation>单个路径</translation>
    </message>
    <message>
        <source>Pat&amp;h:</source>
        <translation>路径(&amp;H)：</translation>
    </message>
    <message>
        <source>A path or an address to ask the service about</source>
        <translation>要向服务查询的路径或网址</translation>
    </message>
    <message>
        <source>Seen fro&amp;m:</source>
        <translation>起始目录(&amp;M)：</translation>
    </message>
    <message>
        <source>The directory that the relative path starts at</source>
        <translation>相对路径的起始目录</translation>
    </message>
    <message>
        <source>Exists, ignoring case:</source>
        <translation>存在（忽略大小写）：</translation>
    </message>
    <message>
        <source>Attributes:</source>
        <translation>属性：</translation>
    </message>
    <message>
        <source>Relative path:</source>
        <translation>相对路径：</translation>
    </message>
    <message>
        <source>Extension:</source>
        <translation>扩展名：</translation>
    </message>
    <message>
        <source>Temporary folder:</source>
        <translation>临时文件夹：</translation>
    </message>
    <message>
        <source>Is a URL:</source>
        <translation>是 URL：</translation>
    </message>
    <message>
        <source>Yes: %1</source>
        <translation>是：%1</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>%1 (as for all that is missing)</source>
        <translation>%1（不存在的路径也是如此）</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
</context>
<context>
    <name>ProfileDocument</name>
    <message>
        <source>%1 is a folder.</source>
        <translation>%1 是文件夹。</translation>
    </message>
    <message>
        <source>There is no folder %1.</source>
        <translation>文件夹 %1 不存在。</translation>
    </message>
    <message>
        <source>%1 is not a regular file.</source>
        <translation>%1 不是普通文件。</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>无法读取 %1。</translation>
    </message>
    <message>
        <source>%1 is larger than 2 MiB: not a profile.</source>
        <translation>%1 超过 2 MiB，不是配置文件。</translation>
    </message>
</context>
<context>
    <name>ProfileEditPanel</name>
    <message>
        <source>Change or add a value</source>
        <translation>修改或添加值</translation>
    </message>
    <message>
        <source>Keep a &amp;backup copy beside the file</source>
        <translation>在文件旁保留备份(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Section:</source>
        <translation>节(&amp;S)：</translation>
    </message>
    <message>
        <source>&amp;Key:</source>
        <translation>键(&amp;K)：</translation>
    </message>
    <message>
        <source>&amp;Value:</source>
        <translation>值(&amp;V)：</translation>
    </message>
    <message>
        <source>Family to write through</source>
        <translation>用于写入的接口</translation>
    </message>
    <message>
        <source>Wide family</source>
        <translation>宽字符接口</translation>
    </message>
    <message>
        <source>Narrow family</source>
        <translation>窄字符接口</translation>
    </message>
    <message>
        <source>Thro&amp;ugh:</source>
        <translation>通过(&amp;U)：</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation>写入(&amp;W)</translation>
    </message>
</context>
<context>
    <name>ProfileLinesModel</name>
    <message>
        <source>Narrow: %1
Wide: %2</source>
        <translation>窄字符：%1
宽字符：%2</translation>
    </message>
    <message>
        <source>No.</source>
        <comment>number of a line</comment>
        <translation>行号</translation>
    </message>
    <message>
        <source>Narrow</source>
        <translation>窄字符</translation>
    </message>
    <message>
        <source>Wide</source>
        <translation>宽字符</translation>
    </message>
    <message>
        <source>Line (raw)</source>
        <translation>行（原始内容）</translation>
    </message>
</context>
<context>
    <name>ProfileReadingsModel</name>
    <message>
        <source>(no name)</source>
        <translation>（无名称）</translation>
    </message>
    <message>
        <source>(not found)</source>
        <translation>（找不到）</translation>
    </message>
    <message>
        <source>The families read different values.</source>
        <translation>两种接口读到的值不同。</translation>
    </message>
    <message>
        <source>The families read the same value.</source>
        <translation>两种接口读到的值相同。</translation>
    </message>
    <message>
        <source>Empty: the narrow family answers this for missing values too.</source>
        <translation>空：值不存在时窄字符接口也返回空。</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>节</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>键</translation>
    </message>
    <message>
        <source>Wide reading</source>
        <translation>宽字符读取</translation>
    </message>
    <message>
        <source>Narrow reading</source>
        <translation>窄字符读取</translation>
    </message>
</context>
<context>
    <name>ProfileWriter</name>
    <message>
        <source>Type a key first.</source>
        <translation>请先输入键。</translation>
    </message>
    <message>
        <source>Type a section first.</source>
        <translation>请先输入节。</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>无法写入 %1。</translation>
    </message>
    <message>
        <source>Nothing written: the narrow family would not read this back. A line with more than one “=” is dropped, and spaces at the ends of names and values are lost.</source>
        <translation>未写入：窄字符接口将无法读回此值。含有多个“=”的行会被丢弃，名称和值首尾的空格也会丢失。</translation>
    </message>
    <message>
        <source>Nothing written: the wide family would not read this back under that name.</source>
        <translation>未写入：宽字符接口将无法按该名称读回此值。</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Profile file</source>
        <translation>配置文件</translation>
    </message>
    <message>
        <source>Path of an INI file</source>
        <translation>INI 文件的路径</translation>
    </message>
    <message>
        <source>Fil&amp;e:</source>
        <translation>文件(&amp;E)：</translation>
    </message>
    <message>
        <source>Ope&amp;n...</source>
        <translation>打开(&amp;N)...</translation>
    </message>
    <message>
        <source>Lines of the file</source>
        <translation>文件的各行</translation>
    </message>
    <message>
        <source>Open a profile, or drop one here: each line appears with a margin that tells how either family of calls reads it.</source>
        <translation>打开配置文件，或将文件拖放到此处：每一行旁边会标明两种接口如何读取它。</translation>
    </message>
    <message>
        <source>Readings of both families</source>
        <translation>两种接口的读取结果</translation>
    </message>
    <message>
        <source>What the wide and the narrow calls read stands here side by side.</source>
        <translation>宽字符接口和窄字符接口读到的内容在此并排显示。</translation>
    </message>
    <message>
        <source>Edit value</source>
        <translation>编辑值</translation>
    </message>
    <message>
        <source>Open a profile</source>
        <translation>打开配置文件</translation>
    </message>
    <message>
        <source>Profiles (*.ini);;All files (*)</source>
        <translation>配置文件 (*.ini);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Type the path of a file first.</source>
        <translation>请先输入文件路径。</translation>
    </message>
    <message>
        <source>Type the beginning of a line to go to it.</source>
        <translation>输入一行的开头即可跳转到该行。</translation>
    </message>
    <message>
        <source>Reading through both families</source>
        <translation>正在通过两种接口读取</translation>
    </message>
    <message>
        <source>%1 values</source>
        <translation>%1 个值</translation>
    </message>
    <message>
        <source>There is no such file: both families read it as empty. Writing a value creates it.</source>
        <translation>文件不存在：两种接口都将其读作空。写入值时会创建该文件。</translation>
    </message>
    <message>
        <source>%1 values, %2 of them read differently.</source>
        <translation>共 %1 个值，其中 %2 个读取结果不同。</translation>
    </message>
    <message>
        <source>Stopped. %1</source>
        <translation>已停止。%1</translation>
    </message>
    <message>
        <source>Line %1. Narrow: %2 Wide: %3</source>
        <translation>第 %1 行。窄字符：%2 宽字符：%3</translation>
    </message>
    <message>
        <source>Open a file first.</source>
        <translation>请先打开文件。</translation>
    </message>
    <message>
        <source>Nothing written.</source>
        <translation>未写入任何内容。</translation>
    </message>
    <message>
        <source>Nothing written: the backup copy could not be made.</source>
        <translation>未写入：无法创建备份。</translation>
    </message>
    <message>
        <source>The value could not be written to %1.</source>
        <translation>无法将值写入 %1。</translation>
    </message>
    <message>
        <source>Written.</source>
        <translation>已写入。</translation>
    </message>
    <message>
        <source>Written; the backup copy is %1.</source>
        <translation>已写入；备份为 %1。</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Host library:</source>
        <translation>主机库：</translation>
    </message>
    <message>
        <source>Settings store:</source>
        <translation>设置存储：</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>语言：</translation>
    </message>
</context>
</TS>
