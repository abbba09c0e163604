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
    <name>FindPane</name>
    <message>
        <source>Na&amp;mes</source>
        <translation>名称(&amp;M)</translation>
    </message>
    <message>
        <source>D&amp;ata</source>
        <translation>数据(&amp;A)</translation>
    </message>
    <message>
        <source>Text to find</source>
        <translation>要查找的文本</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>查找结果</translation>
    </message>
    <message>
        <source>What is found is listed here; Enter goes to it.</source>
        <translation>查找结果将列在这里，按 Enter 键可转到该处。</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>查找(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>隐藏(&amp;H)</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>未找到任何内容。</translation>
    </message>
</context>
<context>
    <name>HitModel</name>
    <message>
        <source>Key</source>
        <translation>项</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>数据</translation>
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
    <name>ImportDialog</name>
    <message>
        <source>As written in the file: %1. Altered: %2. Refused: %3.</source>
        <translation>与文件一致：%1。有改动：%2。被拒绝：%3。</translation>
    </message>
    <message>
        <source>Statements of the file</source>
        <translation>文件中的语句</translation>
    </message>
    <message>
        <source>Import %1</source>
        <translation>导入 %1</translation>
    </message>
    <message>
        <source>&amp;Only what is altered or refused</source>
        <translation>仅显示有改动或被拒绝的语句(&amp;O)</translation>
    </message>
    <message>
        <source>I&amp;mport</source>
        <translation>导入(&amp;M)</translation>
    </message>
</context>
<context>
    <name>ImportJudge</name>
    <message>
        <source>&quot;%1&quot; is not one of the root keys.</source>
        <translation>“%1”不是根项。</translation>
    </message>
    <message>
        <source>&quot;/&quot; in a key&apos;s name separates keys like &quot;\&quot;.</source>
        <translation>项名称中的“/”与“\”一样，会分隔各级项。</translation>
    </message>
    <message>
        <source>A root key cannot be deleted.</source>
        <translation>不能删除根项。</translation>
    </message>
    <message>
        <source>Deletes the key with everything below it.</source>
        <translation>删除该项及其下的全部内容。</translation>
    </message>
    <message>
        <source>The default value, which has no name, cannot be stored.</source>
        <translation>无法存储没有名称的默认值。</translation>
    </message>
    <message>
        <source>The separators in the name put the value into a sub-key.</source>
        <translation>名称中含有分隔符，该值将被放入子项。</translation>
    </message>
    <message>
        <source>Deletes the key &quot;%1&quot; below the root with everything in it.</source>
        <translation>删除根下的项“%1”及其全部内容。</translation>
    </message>
    <message>
        <source>Directly under a root, it is kept in a key of its own name.</source>
        <translation>直接位于根下的值，将保存在与其同名的项中。</translation>
    </message>
    <message>
        <source>Binary data without a byte cannot be stored.</source>
        <translation>无法存储没有任何字节的二进制数据。</translation>
    </message>
    <message>
        <source>%1 cannot be stored.</source>
        <translation>无法存储 %1。</translation>
    </message>
    <message>
        <source>A number without a byte cannot be stored.</source>
        <translation>无法存储没有任何字节的数值。</translation>
    </message>
    <message>
        <source>REG_NONE becomes REG_DWORD.</source>
        <translation>REG_NONE 将变为 REG_DWORD。</translation>
    </message>
    <message>
        <source>The number does not have %1 bytes: its first byte alone is kept.</source>
        <translation>数值不是 %1 字节：只保留其第一个字节。</translation>
    </message>
</context>
<context>
    <name>ImportModel</name>
    <message>
        <source>Refused: %1</source>
        <translation>拒绝：%1</translation>
    </message>
    <message>
        <source>Creates the key</source>
        <translation>创建该项</translation>
    </message>
    <message>
        <source>Sets the value</source>
        <translation>设置该值</translation>
    </message>
    <message>
        <source>Deletes the value</source>
        <translation>删除该值</translation>
    </message>
    <message>
        <source>What happens</source>
        <translation>处理方式</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>项</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Type and data</source>
        <translation>类型和数据</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>行</translation>
    </message>
</context>
<context>
    <name>LogModel</name>
    <message>
        <source>Debug</source>
        <translation>调试</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>级别</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
</context>
<context>
    <name>LogPage</name>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>No line of the log has this level and this text.</source>
        <translation>日志中没有符合此级别和文本的行。</translation>
    </message>
    <message>
        <source>Lowest level shown</source>
        <translation>显示的最低级别</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Information and above</source>
        <translation>信息及以上</translation>
    </message>
    <message>
        <source>Warnings and errors</source>
        <translation>警告和错误</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Text to find</source>
        <translation>要查找的文本</translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation>显示(&amp;S)：</translation>
    </message>
    <message>
        <source>S&amp;ave as...</source>
        <translation>另存为(&amp;A)...</translation>
    </message>
    <message>
        <source>Reading the log</source>
        <translation>正在读取日志</translation>
    </message>
    <message>
        <source>Lines shown: %1 of %2. File: %3</source>
        <translation>显示 %1 行，共 %2 行。文件：%3</translation>
    </message>
    <message>
        <source>Save the lines shown</source>
        <translation>保存显示的行</translation>
    </message>
    <message>
        <source>Log files (*.log)</source>
        <translation>日志文件 (*.log)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>正在保存</translation>
    </message>
    <message>
        <source>Nothing was saved.</source>
        <translation>未保存任何内容。</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>Saved to %2. Lines: %1.</source>
        <translation>已保存到 %2，共 %1 行。</translation>
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
    <name>NameDialog</name>
    <message>
        <source>New key</source>
        <translation>新建项</translation>
    </message>
    <message>
        <source>In %1</source>
        <translation>位于 %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名称(&amp;N)：</translation>
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
    <name>RegFileReader</name>
    <message>
        <source>The file is neither UTF-16 with a byte order mark nor UTF-8.</source>
        <translation>该文件既不是带字节顺序标记的 UTF-16，也不是 UTF-8。</translation>
    </message>
    <message>
        <source>The file has version 4. Only version 5.00 is understood.</source>
        <translation>该文件为第 4 版，仅支持 5.00 版。</translation>
    </message>
    <message>
        <source>The file does not begin with &quot;%1&quot;.</source>
        <translation>该文件不以“%1”开头。</translation>
    </message>
    <message>
        <source>The line of a key must have the form [key].</source>
        <translation>项所在的行必须采用 [项] 的形式。</translation>
    </message>
    <message>
        <source>The line is neither a key nor a value.</source>
        <translation>该行既不是项也不是值。</translation>
    </message>
    <message>
        <source>The value has no &quot;=&quot; after its name.</source>
        <translation>值名称后缺少“=”。</translation>
    </message>
    <message>
        <source>The value stands under no key.</source>
        <translation>该值不属于任何项。</translation>
    </message>
    <message>
        <source>The data has no known form.</source>
        <translation>数据的格式无法识别。</translation>
    </message>
    <message>
        <source>The text has no closing quote.</source>
        <translation>文本缺少结束引号。</translation>
    </message>
    <message>
        <source>Something follows the closing quote.</source>
        <translation>结束引号后还有其他内容。</translation>
    </message>
    <message>
        <source>&quot;dword:&quot; needs one to eight hexadecimal digits.</source>
        <translation>“dword:”后需要一至八位十六进制数字。</translation>
    </message>
    <message>
        <source>&quot;hex:&quot; needs bytes of two digits, separated by commas.</source>
        <translation>“hex:”后需要以逗号分隔的两位十六进制字节。</translation>
    </message>
</context>
<context>
    <name>RegistryEditor</name>
    <message>
        <source>Keys of the same name go with everything in them:</source>
        <translation>同名的项及其全部内容也会一并删除：</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>%1 is there already.</source>
        <translation>%1 已存在。</translation>
    </message>
    <message>
        <source>Created %1.</source>
        <translation>已创建 %1。</translation>
    </message>
    <message>
        <source>%1 could not be created.</source>
        <translation>无法创建 %1。</translation>
    </message>
    <message>
        <source>%1 has a value &quot;%2&quot; already. Nothing was changed.</source>
        <translation>%1 中已有值“%2”。未做任何更改。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands in the root itself, where the registry can list it but not set it. Nothing was changed.</source>
        <translation>“%1”直接位于根中，注册表只能列出它，不能设置它。未做任何更改。</translation>
    </message>
    <message>
        <source>The registry refused the value &quot;%1&quot; in %2. Nothing was changed.</source>
        <translation>注册表拒绝了 %2 中的值“%1”。未做任何更改。</translation>
    </message>
    <message>
        <source>Set &quot;%1&quot; in %2.</source>
        <translation>已设置 %2 中的“%1”。</translation>
    </message>
    <message>
        <source>Set &quot;%1&quot; in %2, but a host library reads %3.</source>
        <translation>已设置 %2 中的“%1”，但主机库读到的是 %3。</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>空</translation>
    </message>
    <message>
        <source>Deleting</source>
        <translation>正在删除</translation>
    </message>
    <message>
        <source>The root itself cannot be deleted.</source>
        <translation>不能删除根本身。</translation>
    </message>
    <message>
        <source>Counting what goes</source>
        <translation>正在统计将删除的内容</translation>
    </message>
    <message>
        <source>Delete the key %1?</source>
        <translation>要删除项 %1 吗？</translation>
    </message>
    <message>
        <source>Keys below it that go with it: %1. Values: %2.</source>
        <translation>将一并删除的下级项：%1 个；值：%2 个。</translation>
    </message>
    <message>
        <source>Deleted the key %1.</source>
        <translation>已删除项 %1。</translation>
    </message>
    <message>
        <source>Deleted a part of the key %1.</source>
        <translation>已删除项 %1 的一部分。</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>以及另外 %1 个</translation>
    </message>
    <message>
        <source>%1 values</source>
        <translation>%1 个值</translation>
    </message>
    <message>
        <source>Deleted from %1: %2.</source>
        <translation>已从 %1 删除 %2。</translation>
    </message>
    <message>
        <source>Delete this value of %1?</source>
        <translation>要删除 %1 中的这个值吗？</translation>
    </message>
    <message>
        <source>Delete these values of %1?</source>
        <translation>要删除 %1 中的这些值吗？</translation>
    </message>
</context>
<context>
    <name>RegistryExport</name>
    <message>
        <source>it is listed under the root, but cannot be asked for there</source>
        <translation>它列在根下，但无法按名称读取</translation>
    </message>
    <message>
        <source>the format knows no line ends in names</source>
        <translation>此格式的名称中不能包含换行符</translation>
    </message>
    <message>
        <source>left out: &quot;%1&quot;: %2</source>
        <translation>已略过：“%1”：%2</translation>
    </message>
</context>
<context>
    <name>RegistryPage</name>
    <message>
        <source>Keys</source>
        <translation>项</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Edit value</source>
        <translation>编辑值</translation>
    </message>
    <message>
        <source>Delete value</source>
        <translation>删除值</translation>
    </message>
    <message>
        <source>Delete key</source>
        <translation>删除项</translation>
    </message>
    <message>
        <source>Copy path</source>
        <translation>复制路径</translation>
    </message>
    <message>
        <source>Copy data</source>
        <translation>复制数据</translation>
    </message>
    <message>
        <source>Export key...</source>
        <translation>导出项...</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>导入...</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新建</translation>
    </message>
    <message>
        <source>&amp;Key...</source>
        <translation>项(&amp;K)...</translation>
    </message>
    <message>
        <source>&amp;Number (REG_DWORD)...</source>
        <translation>数值 (REG_DWORD)(&amp;N)...</translation>
    </message>
    <message>
        <source>&amp;Large number (REG_QWORD)...</source>
        <translation>大数值 (REG_QWORD)(&amp;L)...</translation>
    </message>
    <message>
        <source>&amp;Binary (REG_BINARY)...</source>
        <translation>二进制 (REG_BINARY)(&amp;B)...</translation>
    </message>
    <message>
        <source>&amp;Go to:</source>
        <translation>转到(&amp;G)：</translation>
    </message>
    <message>
        <source>Path of the key</source>
        <translation>项的路径</translation>
    </message>
    <message>
        <source>Cop&amp;y path</source>
        <translation>复制路径(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>新建(&amp;N)</translation>
    </message>
    <message>
        <source>Dele&amp;te</source>
        <translation>删除(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Search...</source>
        <translation>查找(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>编辑(&amp;E)...</translation>
    </message>
    <message>
        <source>I&amp;mport...</source>
        <translation>导入(&amp;M)...</translation>
    </message>
    <message>
        <source>E&amp;xport...</source>
        <translation>导出(&amp;X)...</translation>
    </message>
    <message>
        <source>The registry is empty. Create a key with New, or import a registry file.</source>
        <translation>注册表为空。请用“新建”创建项，或导入注册表文件。</translation>
    </message>
    <message>
        <source>This key holds no values.</source>
        <translation>此项中没有值。</translation>
    </message>
    <message>
        <source>Values: %1. Sub-keys: %2.</source>
        <translation>值：%1 个。子项：%2 个。</translation>
    </message>
    <message>
        <source>The host library has set up no settings store: every call to the registry fails.</source>
        <translation>主机库尚未建立设置存储：所有注册表调用都会失败。</translation>
    </message>
    <message>
        <source>%1 begins with none of the four root keys.</source>
        <translation>%1 不以四个根项之一开头。</translation>
    </message>
    <message>
        <source>There is no key %1.</source>
        <translation>没有项 %1。</translation>
    </message>
    <message>
        <source>Copied %1.</source>
        <translation>已复制 %1。</translation>
    </message>
    <message>
        <source>The search was cancelled. Found so far: %1.</source>
        <translation>查找已取消。目前找到：%1 处。</translation>
    </message>
    <message>
        <source>Showing the first %1 places; there may be more.</source>
        <translation>显示前 %1 处结果，可能还有更多。</translation>
    </message>
    <message>
        <source>Found: %1.</source>
        <translation>找到 %1 处。</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>正在查找</translation>
    </message>
    <message>
        <source>Values: %1. Found: %2.</source>
        <translation>值：%1 个。找到：%2 处。</translation>
    </message>
    <message>
        <source>&amp;String (REG_SZ)...</source>
        <translation>字符串 (REG_SZ)(&amp;S)...</translation>
    </message>
</context>
<context>
    <name>RegistryTransfer</name>
    <message>
        <source>Export %1</source>
        <translation>导出 %1</translation>
    </message>
    <message>
        <source>Registry file, UTF-8 (*.reg)</source>
        <translation>注册表文件，UTF-8 (*.reg)</translation>
    </message>
    <message>
        <source>Registry file, UTF-16 as Windows writes it (*.reg)</source>
        <translation>注册表文件，UTF-16，与 Windows 相同 (*.reg)</translation>
    </message>
    <message>
        <source>The export was cancelled.</source>
        <translation>导出已取消。</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>Exporting</source>
        <translation>正在导出</translation>
    </message>
    <message>
        <source>Import a registry file</source>
        <translation>导入注册表文件</translation>
    </message>
    <message>
        <source>Registry files (*.reg)</source>
        <translation>注册表文件 (*.reg)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>%1 could not be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>%1 was not imported: %2</source>
        <translation>未导入 %1：%2</translation>
    </message>
    <message>
        <source>Reading the file</source>
        <translation>正在读取文件</translation>
    </message>
    <message>
        <source>Importing</source>
        <translation>正在导入</translation>
    </message>
    <message>
        <source>Exported to %2. Values: %1. Left out: %3, each named in a comment.</source>
        <translation>已导出到 %2。值：%1 个。略过：%3 个，均已在注释中列出。</translation>
    </message>
    <message>
        <source>Exported to %2. Values: %1.</source>
        <translation>已导出到 %2。值：%1 个。</translation>
    </message>
    <message>
        <source>Imported %1. Statements carried out: %2. Refused: %3.</source>
        <translation>已导入 %1。执行的语句：%2 条。被拒绝：%3 条。</translation>
    </message>
    <message>
        <source>The import of %1 was cancelled. Statements carried out: %2. Refused: %3.</source>
        <translation>%1 的导入已取消。执行的语句：%2 条。被拒绝：%3 条。</translation>
    </message>
</context>
<context>
    <name>RegistryTreeModel</name>
    <message>
        <source>All root keys</source>
        <translation>所有根项</translation>
    </message>
    <message>
        <source>HKEY_CLASSES_ROOT, HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE and HKEY_USERS are one and the same key</source>
        <translation>HKEY_CLASSES_ROOT、HKEY_CURRENT_USER、HKEY_LOCAL_MACHINE 和 HKEY_USERS 是同一个项</translation>
    </message>
    <message>
        <source>Created and still empty: it can be opened, but is not listed yet</source>
        <translation>已创建但仍为空：可以打开，但尚未列出</translation>
    </message>
</context>
<context>
    <name>RegistryValueModel</name>
    <message>
        <source>Set directly under a root: kept in the key &quot;%1&quot;</source>
        <translation>直接在根下设置：保存在项“%1”中</translation>
    </message>
    <message>
        <source>Only listed: asking for it by name looks into the key &quot;%1&quot;</source>
        <translation>仅可列出：按名称读取时会到项“%1”中查找</translation>
    </message>
    <message>
        <source>unreadable</source>
        <translation>无法读取</translation>
    </message>
    <message>
        <source>Raw: the text in the store, which no host library sees</source>
        <translation>原始内容：存储中的文本，主机库看不到</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>数据</translation>
    </message>
    <message>
        <source>Stored text (raw)</source>
        <translation>存储文本（原始）</translation>
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
<context>
    <name>StoredText</name>
    <message>
        <source>No value: the mark of a key that was created here</source>
        <translation>没有值：在此创建项时留下的标记</translation>
    </message>
    <message>
        <source>A list: the file has a comma without quotes</source>
        <translation>列表：文件中有未加引号的逗号</translation>
    </message>
    <message>
        <source>No type tag before a &quot;$&quot;</source>
        <translation>“$”前没有类型标记</translation>
    </message>
    <message>
        <source>Tag %1 is refused</source>
        <translation>类型标记 %1 被拒绝</translation>
    </message>
    <message>
        <source>Not found under this name</source>
        <translation>按此名称找不到</translation>
    </message>
    <message>
        <source>The tag is no number and counts as 0</source>
        <translation>类型标记不是数字，按 0 处理</translation>
    </message>
    <message>
        <source>Bad number: &quot;%1&quot; is read as 0</source>
        <translation>数值错误：“%1”将读作 0</translation>
    </message>
    <message>
        <source>Bad digits: what is not hexadecimal is skipped</source>
        <translation>数字错误：非十六进制字符将被跳过</translation>
    </message>
    <message>
        <source>An odd number of hexadecimal digits</source>
        <translation>十六进制数字的个数为奇数</translation>
    </message>
</context>
<context>
    <name>ValueDialog</name>
    <message>
        <source>New value</source>
        <translation>新建值</translation>
    </message>
    <message>
        <source>Edit value</source>
        <translation>编辑值</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>数据</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名称(&amp;N)：</translation>
    </message>
    <message>
        <source>&amp;Type:</source>
        <translation>类型(&amp;T)：</translation>
    </message>
    <message>
        <source>D&amp;ata:</source>
        <translation>数据(&amp;A)：</translation>
    </message>
</context>
<context>
    <name>ValueInput</name>
    <message>
        <source>Type a whole number, such as 255 or 0xff.</source>
        <translation>请输入整数，例如 255 或 0xff。</translation>
    </message>
    <message>
        <source>The largest DWORD is 4294967295 (0xffffffff).</source>
        <translation>DWORD 的最大值为 4294967295 (0xffffffff)。</translation>
    </message>
    <message>
        <source>Only the lowest byte of a QWORD is kept: %1 will be read as %2.</source>
        <translation>QWORD 只保留最低字节：%1 将读作 %2。</translation>
    </message>
    <message>
        <source>A DWORD above 2147483647 (0x7fffffff) will be read as 0.</source>
        <translation>大于 2147483647 (0x7fffffff) 的 DWORD 将读作 0。</translation>
    </message>
    <message>
        <source>Binary data needs at least one byte.</source>
        <translation>二进制数据至少需要一个字节。</translation>
    </message>
    <message>
        <source>Type pairs of hexadecimal digits, such as 00 7f ff.</source>
        <translation>请成对输入十六进制数字，例如 00 7f ff。</translation>
    </message>
    <message>
        <source>A value needs a name.</source>
        <translation>值需要名称。</translation>
    </message>
    <message>
        <source>&quot;\&quot; and &quot;/&quot; in the name would put the value into a sub-key.</source>
        <translation>名称中的“\”和“/”会把值放入子项。</translation>
    </message>
    <message>
        <source>A key needs a name.</source>
        <translation>项需要名称。</translation>
    </message>
    <message>
        <source>&quot;\&quot; and &quot;/&quot; separate keys. Create one key at a time.</source>
        <translation>“\”和“/”用于分隔项。请逐级创建。</translation>
    </message>
</context>
</TS>
