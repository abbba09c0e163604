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
