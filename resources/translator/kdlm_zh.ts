<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>%1, built with %2</source>
        <translation>%1，构建时为 %2</translation>
    </message>
    <message>
        <source>About Quayside</source>
        <translation>关于 Quayside</translation>
    </message>
    <message>
        <source>Shows what host libraries get from the Windows-style services that run in this program.</source>
        <translation>显示主机库从本程序中运行的 Windows 风格服务得到什么。</translation>
    </message>
    <message>
        <source>Quayside:</source>
        <translation>Quayside：</translation>
    </message>
    <message>
        <source>Qt:</source>
        <translation>Qt：</translation>
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
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
</context>
<context>
    <name>AddressBar</name>
    <message>
        <source>&amp;Go to:</source>
        <translation>转到(&amp;G)：</translation>
    </message>
    <message>
        <source>Path of the key</source>
        <translation>项的路径</translation>
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
        <source>&amp;Jump there</source>
        <translation>跳转到该处(&amp;J)</translation>
    </message>
    <message>
        <source>Names are case-sensitive here: %1?</source>
        <translation>此处的名称区分大小写：是否为 %1？</translation>
    </message>
    <message>
        <source>There is a key %1: is that the one you mean?</source>
        <translation>有一个项 %1：要找的是它吗？</translation>
    </message>
</context>
<context>
    <name>AskedPane</name>
    <message>
        <source>Key</source>
        <translation>键</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Entry of a profile</source>
        <translation>配置文件条目</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>种类</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Asked for</source>
        <translation>请求次数</translation>
    </message>
    <message>
        <source>Absent</source>
        <translation>不存在</translation>
    </message>
    <message>
        <source>Also w&amp;hat was there</source>
        <translation>包括存在的内容(&amp;H)</translation>
    </message>
    <message>
        <source>The keys, values, entries of profiles and files that a library asked for and did not find.</source>
        <translation>库请求了却没有找到的键、值、配置文件条目和文件。</translation>
    </message>
    <message>
        <source>Everything that was asked for was there.</source>
        <translation>请求的内容都存在。</translation>
    </message>
</context>
<context>
    <name>BackupBox</name>
    <message>
        <source>&amp;Back the store up first, to %1</source>
        <translation>先备份存储到 %1(&amp;B)</translation>
    </message>
    <message>
        <source>Nothing to &amp;back up: the store has no file that could change</source>
        <translation>无需备份：存储没有会被更改的文件(&amp;B)</translation>
    </message>
    <message>
        <source>A copy of the store&apos;s file as it is: %1
Put it in the place of the file to bring everything back.</source>
        <translation>存储文件当前内容的副本：%1
用它替换该文件即可恢复全部内容。</translation>
    </message>
    <message>
        <source>Cancelled: nothing was changed.</source>
        <translation>已取消：未作任何更改。</translation>
    </message>
    <message>
        <source>The store could not be backed up: %1. Nothing was changed.</source>
        <translation>无法备份存储：%1。未作任何更改。</translation>
    </message>
    <message>
        <source>Backed the store up to %1.</source>
        <translation>已将存储备份到 %1。</translation>
    </message>
    <message>
        <source>Backing the store up</source>
        <translation>正在备份存储</translation>
    </message>
</context>
<context>
    <name>Base64Note</name>
    <message>
        <source>The last Base64 character stands alone and yields nothing.</source>
        <translation>最后一个 Base64 字符单独成组，解码不出内容。</translation>
    </message>
    <message>
        <source>Only the first character is URL-safe Base64; the library ignores what follows.</source>
        <translation>只有第一个字符是 URL 安全的 Base64，其后的内容被库忽略。</translation>
    </message>
    <message>
        <source>Only the first %L1 characters are URL-safe Base64; the library ignores what follows.</source>
        <translation>只有前 %L1 个字符是 URL 安全的 Base64，其后的内容被库忽略。</translation>
    </message>
    <message>
        <source>This is no URL-safe Base64: the library decodes nothing of it.</source>
        <translation>这不是 URL 安全的 Base64：库解码不出任何内容。</translation>
    </message>
</context>
<context>
    <name>Base64Panel</name>
    <message>
        <source>&amp;Text or Base64</source>
        <translation>文本或 Base64(&amp;T)</translation>
    </message>
    <message>
        <source>Type or paste what is to be converted.</source>
        <translation>在此输入或粘贴要转换的内容。</translation>
    </message>
    <message>
        <source>Re&amp;sult</source>
        <translation>结果(&amp;S)</translation>
    </message>
    <message>
        <source>The result appears here.</source>
        <translation>结果显示在此处。</translation>
    </message>
    <message>
        <source>E&amp;ncode</source>
        <translation>编码(&amp;N)</translation>
    </message>
    <message>
        <source>Base64Encoder::Encode: URL-safe, with padding</source>
        <translation>Base64Encoder::Encode：URL 安全，带填充</translation>
    </message>
    <message>
        <source>Base64Encoder::Decode: URL-safe only, up to the first other character</source>
        <translation>Base64Encoder::Decode：仅限 URL 安全字母表，遇到其他字符即停止</translation>
    </message>
    <message>
        <source>Make &amp;URL-safe</source>
        <translation>转为 URL 安全(&amp;U)</translation>
    </message>
    <message>
        <source>Base64Encoder::UrlEncode: standard Base64 to URL-safe without padding</source>
        <translation>Base64Encoder::UrlEncode：将标准 Base64 转为不带填充的 URL 安全形式</translation>
    </message>
    <message>
        <source>Enter a text first.</source>
        <translation>请先输入文本。</translation>
    </message>
    <message>
        <source>Bytes encoded: %L1.</source>
        <translation>已编码 %L1 字节。</translation>
    </message>
    <message>
        <source>Bytes decoded: %L1.</source>
        <translation>已解码 %L1 字节。</translation>
    </message>
    <message>
        <source>Made URL-safe, without padding.</source>
        <translation>已转为 URL 安全形式，不带填充。</translation>
    </message>
    <message>
        <source>D&amp;ecode</source>
        <translation>解码(&amp;E)</translation>
    </message>
</context>
<context>
    <name>Bundle</name>
    <message>
        <source>%1 cannot be unpacked: %2</source>
        <translation>无法解包 %1：%2</translation>
    </message>
    <message>
        <source>%1 is no bundle.</source>
        <translation>%1 不是记录包。</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>无法读取 %1：%2。</translation>
    </message>
</context>
<context>
    <name>BundleArchive</name>
    <message>
        <source>it would become more than %L1 times as large; unpack it yourself and name the folder, if you know it</source>
        <translation>解包后会增大到 %L1 倍以上；如果信任它，请自行解包并指定其文件夹</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no file</source>
        <translation>“%1”不是普通文件</translation>
    </message>
    <message>
        <source>&quot;%1&quot; leads out of it</source>
        <translation>“%1”指向包外</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>无法写入 %1：%2。</translation>
    </message>
    <message>
        <source>%1 cannot be unpacked: %2.</source>
        <translation>无法解包 %1：%2。</translation>
    </message>
</context>
<context>
    <name>BundleIndex</name>
    <message>
        <source>over the size limit</source>
        <translation>超出大小限制</translation>
    </message>
    <message>
        <source>no regular file</source>
        <translation>不是普通文件</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>无法读取</translation>
    </message>
    <message>
        <source>the list of the bundle is damaged: %1</source>
        <translation>包的清单已损坏：%1</translation>
    </message>
    <message>
        <source>the list is none of a bundle</source>
        <translation>清单不属于记录包</translation>
    </message>
    <message>
        <source>a bundle of a form that is not known here: %1</source>
        <translation>未知格式的记录包：%1</translation>
    </message>
    <message>
        <source>the list of the bundle is wrong at %1</source>
        <translation>包的清单在 %1 处有误</translation>
    </message>
</context>
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
    <name>ByteResult</name>
    <message>
        <source>Writes into this file.</source>
        <translation>写入此文件。</translation>
    </message>
    <message>
        <source>With --json, name a file by --output.</source>
        <translation>使用 --json 时，请用 --output 指定文件。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
</context>
<context>
    <name>CallDetails</name>
    <message>
        <source>Arguments:</source>
        <translation>参数：</translation>
    </message>
    <message>
        <source>Written by the service:</source>
        <translation>服务写入：</translation>
    </message>
    <message>
        <source>Call %1: %2, a procedure of the library</source>
        <translation>调用 %1：%2，库的一个过程</translation>
    </message>
    <message>
        <source>Call %1: %2 (%3)</source>
        <translation>调用 %1：%2（%3）</translation>
    </message>
    <message>
        <source>Caller: %1</source>
        <translation>调用者：%1</translation>
    </message>
    <message>
        <source>Entered: %1 after the start, in thread %2</source>
        <translation>进入：开始后 %1，线程 %2</translation>
    </message>
    <message>
        <source>Within call: %1</source>
        <translation>位于调用之内：%1</translation>
    </message>
    <message>
        <source>It never returned.</source>
        <translation>此调用未返回。</translation>
    </message>
    <message>
        <source>Took: %1</source>
        <translation>用时：%1</translation>
    </message>
    <message>
        <source>Result: %1</source>
        <translation>返回值：%1</translation>
    </message>
</context>
<context>
    <name>CallFilter</name>
    <message>
        <source>&quot;%1&quot; names no calls. Wanted are numbers such as 17 or 10-20, and op:NAME, caller:TEXT, manager:NAME or thread:NUMBER.</source>
        <translation>“%1”不表示任何调用。应为 17 或 10-20 这样的编号，以及 op:NAME、caller:TEXT、manager:NAME 或 thread:NUMBER。</translation>
    </message>
</context>
<context>
    <name>CallFilterBar</name>
    <message>
        <source>Library</source>
        <translation>库</translation>
    </message>
    <message>
        <source>All libraries</source>
        <translation>所有库</translation>
    </message>
    <message>
        <source>Manager</source>
        <translation>管理器</translation>
    </message>
    <message>
        <source>All managers</source>
        <translation>所有管理器</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>All operations</source>
        <translation>所有操作</translation>
    </message>
    <message>
        <source>Failures onl&amp;y</source>
        <translation>仅失败(&amp;Y)</translation>
    </message>
    <message>
        <source>Calls that failed, and calls that never returned</source>
        <translation>失败的调用和未返回的调用</translation>
    </message>
    <message>
        <source>Text to find</source>
        <translation>要查找的文本</translation>
    </message>
</context>
<context>
    <name>CallPane</name>
    <message>
        <source>Here ends what is shown. The button Copy copies all %L1 characters.</source>
        <translation>显示到此为止。“复制”按钮会复制全部 %L1 个字符。</translation>
    </message>
    <message>
        <source>the call</source>
        <translation>调用</translation>
    </message>
    <message>
        <source>The chosen call</source>
        <translation>所选的调用</translation>
    </message>
    <message>
        <source>Choose a call: all that was recorded of it stands here.</source>
        <translation>选择一个调用：这里显示记录下来的全部内容。</translation>
    </message>
</context>
<context>
    <name>CallParts</name>
    <message>
        <source>unknown handle</source>
        <translation>未知句柄</translation>
    </message>
    <message>
        <source>(outcome)</source>
        <translation>（结局）</translation>
    </message>
    <message>
        <source>never returned</source>
        <translation>未返回</translation>
    </message>
    <message>
        <source>returned</source>
        <translation>已返回</translation>
    </message>
    <message>
        <source>%1 (written)</source>
        <translation>%1（写入）</translation>
    </message>
    <message>
        <source>(result)</source>
        <translation>（返回值）</translation>
    </message>
</context>
<context>
    <name>CallRows</name>
    <message>
        <source>Call</source>
        <translation>调用</translation>
    </message>
    <message>
        <source>Caller</source>
        <translation>调用者</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>返回值</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>用时</translation>
    </message>
    <message>
        <source>The line of this call is damaged.</source>
        <translation>此调用所在的行已损坏。</translation>
    </message>
    <message>
        <source>never returned</source>
        <translation>未返回</translation>
    </message>
</context>
<context>
    <name>CallTable</name>
    <message>
        <source>Calls</source>
        <translation>调用</translation>
    </message>
    <message>
        <source>No call of the recording is like this.</source>
        <translation>记录中没有这样的调用。</translation>
    </message>
    <message>
        <source>Open a recording, or drop one here: what host libraries asked and what they were told, call by call. &quot;quaysidectl trace record PROGRAM&quot; makes one.</source>
        <translation>打开一个记录文件，或将其拖到此处：逐个调用显示主机库请求了什么、得到了什么。“quaysidectl trace record PROGRAM”可生成记录文件。</translation>
    </message>
</context>
<context>
    <name>CallText</name>
    <message>
        <source>(never returned)</source>
        <translation>（未返回）</translation>
    </message>
</context>
<context>
    <name>CallsPane</name>
    <message>
        <source>Searching: %L1 so far</source>
        <translation>正在查找：目前 %L1 个</translation>
    </message>
    <message>
        <source>Calls: %L1 of %L2</source>
        <translation>调用：%L1 个，共 %L2 个</translation>
    </message>
</context>
<context>
    <name>ChangeReport</name>
    <message>
        <source>%1 %2</source>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>%1 Nothing was changed.</source>
        <translation>%1未作任何更改。</translation>
    </message>
</context>
<context>
    <name>CipherPanel</name>
    <message>
        <source>Clear te&amp;xt</source>
        <translation>明文(&amp;X)</translation>
    </message>
    <message>
        <source>Type or paste a text to encrypt.</source>
        <translation>在此输入或粘贴要加密的文本。</translation>
    </message>
    <message>
        <source>Base64 of the cip&amp;her text</source>
        <translation>密文的 Base64(&amp;H)</translation>
    </message>
    <message>
        <source>Paste what a host library has encrypted.</source>
        <translation>在此粘贴主机库加密后的内容。</translation>
    </message>
    <message>
        <source>E&amp;ncrypt</source>
        <translation>加密(&amp;N)</translation>
    </message>
    <message>
        <source>Decryp&amp;t</source>
        <translation>解密(&amp;T)</translation>
    </message>
    <message>
        <source>Encrypt</source>
        <translation>加密</translation>
    </message>
    <message>
        <source>Decrypt</source>
        <translation>解密</translation>
    </message>
    <message>
        <source>Bytes encrypted: %L1.</source>
        <translation>已加密 %L1 字节。</translation>
    </message>
    <message>
        <source>Enter the cipher text first.</source>
        <translation>请先输入密文。</translation>
    </message>
    <message>
        <source>They are not shown: the clear text is kept.</source>
        <translation>这些字节未显示：明文保持不变。</translation>
    </message>
</context>
<context>
    <name>CodePages</name>
    <message>
        <source>Simplified Chinese</source>
        <translation>简体中文</translation>
    </message>
    <message>
        <source>Traditional Chinese</source>
        <translation>繁体中文</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日语</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>朝鲜语</translation>
    </message>
    <message>
        <source>Western European</source>
        <translation>西欧</translation>
    </message>
    <message>
        <source>Central European</source>
        <translation>中欧</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>西里尔</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>希腊语</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>土耳其语</translation>
    </message>
    <message>
        <source>The system&apos;s: %1</source>
        <translation>系统：%1</translation>
    </message>
</context>
<context>
    <name>CommandTable</name>
    <message>
        <source>Lists sub-keys and values.</source>
        <translation>列出子键和值。</translation>
    </message>
    <message>
        <source>Sets a value.</source>
        <translation>设置一个值。</translation>
    </message>
    <message>
        <source>Deletes a value or a key.</source>
        <translation>删除一个值或一个键。</translation>
    </message>
    <message>
        <source>Renames a key or a value.</source>
        <translation>重命名一个键或一个值。</translation>
    </message>
    <message>
        <source>Copies a key with everything below it.</source>
        <translation>复制一个键及其下的全部内容。</translation>
    </message>
    <message>
        <source>Looks for a text in names and data.</source>
        <translation>在名称和数据中查找文本。</translation>
    </message>
    <message>
        <source>Writes a key with everything below it into a registry file.</source>
        <translation>将一个键及其下的全部内容写入注册表文件。</translation>
    </message>
    <message>
        <source>Carries out the statements of a registry file.</source>
        <translation>执行注册表文件中的语句。</translation>
    </message>
    <message>
        <source>Compares two keys, stores or registry files.</source>
        <translation>比较两个键、存储或注册表文件。</translation>
    </message>
    <message>
        <source>Lists what host libraries cannot read or read otherwise than written.</source>
        <translation>列出主机库无法读取或读出与所写不同的内容。</translation>
    </message>
    <message>
        <source>Lists what the families find in a profile, and what they read.</source>
        <translation>列出两族函数在配置文件中找到和读出的内容。</translation>
    </message>
    <message>
        <source>Prints what the families read.</source>
        <translation>输出两族函数读出的内容。</translation>
    </message>
    <message>
        <source>Writes a value through one of the families.</source>
        <translation>通过其中一族函数写入一个值。</translation>
    </message>
    <message>
        <source>Deletes what a family reads as a key or a section.</source>
        <translation>删除一族函数读作键或节的内容。</translation>
    </message>
    <message>
        <source>Writes all entries of the profile that is the standard input.</source>
        <translation>写入来自标准输入的配置文件的所有条目。</translation>
    </message>
    <message>
        <source>Tells the lines that a family drops, replaces or reads otherwise.</source>
        <translation>指出一族函数丢弃、替换或读作其他内容的行。</translation>
    </message>
    <message>
        <source>Lists what the two families read differently.</source>
        <translation>列出两族函数读出不同的内容。</translation>
    </message>
    <message>
        <source>Lists the find records that a host library gets for a pattern.</source>
        <translation>列出主机库按模式得到的查找记录。</translation>
    </message>
    <message>
        <source>Prints what the directory service answers about a path.</source>
        <translation>输出目录服务对一个路径的回答。</translation>
    </message>
    <message>
        <source>Lists the records of the font service.</source>
        <translation>列出字体服务的记录。</translation>
    </message>
    <message>
        <source>Lists the monitors as the service answers them.</source>
        <translation>按服务的回答列出显示器。</translation>
    </message>
    <message>
        <source>Lists what the key-state service answers.</source>
        <translation>列出按键状态服务的回答。</translation>
    </message>
    <message>
        <source>Encrypts a file or the standard input as host libraries do it.</source>
        <translation>按主机库的方式加密文件或标准输入。</translation>
    </message>
    <message>
        <source>Decrypts a file or the standard input, or tells why that fails.</source>
        <translation>解密文件或标准输入，或说明失败的原因。</translation>
    </message>
    <message>
        <source>Prints the digests of a file or the standard input.</source>
        <translation>输出文件或标准输入的摘要。</translation>
    </message>
    <message>
        <source>Encodes or decodes URL-safe Base64.</source>
        <translation>编码或解码 URL 安全的 Base64。</translation>
    </message>
    <message>
        <source>Prints changes as they are saved, until it is interrupted.</source>
        <translation>在更改保存时输出更改，直到被中断。</translation>
    </message>
    <message>
        <source>Tells whether host libraries can be loaded here, and if not, why.</source>
        <translation>说明主机库能否在此处加载；若不能，说明原因。</translation>
    </message>
    <message>
        <source>Prints the data of a value, or of all values of a key.</source>
        <translation>输出一个值的数据，或键的所有值的数据。</translation>
    </message>
    <message>
        <source>Prints the calls of a recording.</source>
        <translation>显示记录文件中的调用。</translation>
    </message>
    <message>
        <source>Counts calls, failures and time, and what was asked for and absent.</source>
        <translation>统计调用、失败和时间，以及请求了什么、缺少什么。</translation>
    </message>
    <message>
        <source>Lists handles and arrays that were never given back.</source>
        <translation>列出从未归还的句柄和数组。</translation>
    </message>
    <message>
        <source>Compares two recordings.</source>
        <translation>比较两个记录文件。</translation>
    </message>
    <message>
        <source>Keeps some calls of a recording, with what they need.</source>
        <translation>保留记录文件中的部分调用及其所需的调用。</translation>
    </message>
    <message>
        <source>Runs a program and records the calls of its services.</source>
        <translation>运行一个程序，并记录对其服务的调用。</translation>
    </message>
    <message>
        <source>Writes a host library that builds and loads at once, to begin with.</source>
        <translation>写出一个可立即构建和加载的宿主库，供由此开始。</translation>
    </message>
    <message>
        <source>Performs the calls of a recording again, and compares the answers.</source>
        <translation>重新执行记录中的调用并比较应答。</translation>
    </message>
    <message>
        <source>Keeps few calls of a recording after which one gets the same answer.</source>
        <translation>从记录中保留少量调用，使某个调用仍得到相同的应答。</translation>
    </message>
    <message>
        <source>Performs all recordings of a folder again.</source>
        <translation>重新执行一个文件夹中的所有记录。</translation>
    </message>
</context>
<context>
    <name>CopyButton</name>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy: %1</source>
        <translation>复制：%1</translation>
    </message>
</context>
<context>
    <name>CryptoBase64Command</name>
    <message>
        <source>Decodes instead of encoding.</source>
        <translation>解码而不是编码。</translation>
    </message>
</context>
<context>
    <name>CryptoDecryptCommand</name>
    <message>
        <source>The library ends the text before its first zero byte. Bytes left out: %L1.</source>
        <translation>库在第一个零字节之前结束文本。略去的字节数：%L1。</translation>
    </message>
</context>
<context>
    <name>CryptoDigestCommand</name>
    <message>
        <source>Prints the digest of both this text and the first one, too.</source>
        <translation>同时输出此文本与第一个文本的合并摘要。</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
</context>
<context>
    <name>CryptoPage</name>
    <message>
        <source>Kinds of work</source>
        <translation>功能</translation>
    </message>
    <message>
        <source>Di&amp;gests</source>
        <translation>摘要(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Base64</source>
        <translation>Base64(&amp;B)</translation>
    </message>
    <message>
        <source>Encr&amp;yption</source>
        <translation>加密与解密(&amp;Y)</translation>
    </message>
</context>
<context>
    <name>CursorPanel</name>
    <message>
        <source>Pointer and cursor</source>
        <translation>指针与光标</translation>
    </message>
    <message>
        <source>Each SetCursor adds a level to the stack of cursors, and the service never takes one away.</source>
        <translation>每次 SetCursor 都会在光标栈上增加一层，而服务从不移除任何一层。</translation>
    </message>
    <message>
        <source>Shape of the cursor</source>
        <translation>光标形状</translation>
    </message>
    <message>
        <source>S&amp;etCursor</source>
        <translation>SetCursor(&amp;E)</translation>
    </message>
    <message>
        <source>Ta&amp;ke back</source>
        <translation>撤回(&amp;K)</translation>
    </message>
    <message>
        <source>Takes away the levels added here, past the service, which cannot.</source>
        <translation>绕过服务移除在此处增加的各层；服务本身做不到。</translation>
    </message>
    <message>
        <source>SetCursor with null changes nothing.</source>
        <translation>以 null 调用 SetCursor 不会有任何变化。</translation>
    </message>
    <message>
        <source>Levels added from here: %L1.</source>
        <translation>在此处增加的层数：%L1。</translation>
    </message>
    <message>
        <source>GetCursorPos (screen):</source>
        <translation>GetCursorPos（屏幕坐标）：</translation>
    </message>
    <message>
        <source>ScreenToClient (window):</source>
        <translation>ScreenToClient（窗口坐标）：</translation>
    </message>
    <message>
        <source>GetCursor (override):</source>
        <translation>GetCursor（覆盖光标）：</translation>
    </message>
</context>
<context>
    <name>CursorShapes</name>
    <message>
        <source>Arrow</source>
        <translation>箭头</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>等待</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>忙碌</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>十字</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Hand</source>
        <translation>手形</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移动</translation>
    </message>
    <message>
        <source>Forbidden</source>
        <translation>禁止</translation>
    </message>
    <message>
        <source>shape %1</source>
        <translation>形状 %1</translation>
    </message>
    <message>
        <source>null: none is set</source>
        <translation>null：未设置</translation>
    </message>
</context>
<context>
    <name>DataField</name>
    <message>
        <source>Enter begins a new line; Ctrl+Enter confirms.</source>
        <translation>回车键换行；Ctrl+Enter 确定。</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>数据</translation>
    </message>
</context>
<context>
    <name>DecodedText</name>
    <message>
        <source>They are no text; shown in hexadecimal.</source>
        <translation>内容不是文本，以十六进制显示。</translation>
    </message>
</context>
<context>
    <name>DecryptionNote</name>
    <message>
        <source>DecryptionAES_Export gives null: its result holds at most %L1 bytes. This is what Encrypt::DecryptionAES gives.</source>
        <translation>DecryptionAES_Export 返回 null：其结果最多容纳 %L1 字节。此处显示的是 Encrypt::DecryptionAES 的结果。</translation>
    </message>
    <message>
        <source>Wrong pass phrase, or damaged cipher text:</source>
        <translation>密码短语错误，或密文已损坏：</translation>
    </message>
    <message>
        <source>Wrong key or IV, or damaged cipher text:</source>
        <translation>密钥或初始向量错误，或密文已损坏：</translation>
    </message>
    <message>
        <source>the padding does not match, and the library gets an empty text.</source>
        <translation>填充不匹配，库得到的是空文本。</translation>
    </message>
    <message>
        <source>there is no padding, and the library gets these bytes as they are.</source>
        <translation>没有填充，库原样得到这些字节。</translation>
    </message>
    <message>
        <source>Damaged cipher text: %L1 bytes are not whole blocks of 16. The library gets them undecrypted.</source>
        <translation>密文已损坏：%L1 字节不是 16 字节的整数倍。库得到的是未经解密的字节。</translation>
    </message>
    <message>
        <source>the clear text is not valid UTF-8.</source>
        <translation>明文不是有效的 UTF-8。</translation>
    </message>
    <message>
        <source>Bytes decrypted: %L1.</source>
        <translation>已解密 %L1 字节。</translation>
    </message>
    <message>
        <source>The library ends the text before its first zero byte. Bytes left out: %L1.</source>
        <translation>库的文本止于第一个零字节之前。略去 %L1 字节。</translation>
    </message>
    <message>
        <source>Damaged cipher text: one byte is no whole block of 16. The library gets it undecrypted.</source>
        <translation>密文已损坏：1 字节不是 16 字节的整数倍。库得到的是未经解密的字节。</translation>
    </message>
</context>
<context>
    <name>DifferenceColumns</name>
    <message>
        <source>equal lines left out</source>
        <translation>省略的相同行</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>added</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>none</source>
        <comment>end of a line</comment>
        <translation>无</translation>
    </message>
    <message>
        <source>not text</source>
        <translation>非文本</translation>
    </message>
    <message>
        <source>moved</source>
        <translation>移动</translation>
    </message>
    <message>
        <source>line end</source>
        <translation>行尾</translation>
    </message>
    <message>
        <source>±</source>
        <comment>column of signs</comment>
        <translation>±</translation>
    </message>
    <message>
        <source>− removed, + added, ⋯ equal lines left out</source>
        <translation>− 删除，+ 添加，⋯ 省略的相同行</translation>
    </message>
    <message>
        <source>Before</source>
        <comment>number of a line</comment>
        <translation>之前</translation>
    </message>
    <message>
        <source>After</source>
        <comment>number of a line</comment>
        <translation>之后</translation>
    </message>
    <message>
        <source>End</source>
        <comment>of a line</comment>
        <translation>行尾</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>行</translation>
    </message>
</context>
<context>
    <name>DigestJob</name>
    <message>
        <source>MD5 padding: %L1 blocks left</source>
        <translation>MD5 填充：还剩 %L1 块</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Enter the path of a file first.</source>
        <translation>请先输入文件路径。</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>文件 %1 不存在。</translation>
    </message>
    <message>
        <source>%1 is not a regular file.</source>
        <translation>%1 不是普通文件。</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
</context>
<context>
    <name>DigestNotes</name>
    <message>
        <source>it holds bytes of 0x80 or above</source>
        <translation>含有 0x80 及以上的字节</translation>
    </message>
    <message>
        <source>its length modulo 64 is 57 to 63</source>
        <translation>长度除以 64 的余数为 57 至 63</translation>
    </message>
    <message>
        <source>it is 512 MiB long or longer</source>
        <translation>长度达到或超过 512 MiB</translation>
    </message>
    <message>
        <source>The library&apos;s MD5 departs from RFC 1321 here, which gives %1, because of the text: %2.</source>
        <translation>此处库的 MD5 与 RFC 1321 不同，后者的结果为 %1。原因在于文本：%2。</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between reasons</comment>
        <translation>；</translation>
    </message>
    <message>
        <source>Sha256Encode and KdEncode read only the %L1 bytes before the first zero byte.</source>
        <translation>Sha256Encode 和 KdEncode 只读取第一个零字节之前的 %L1 字节。</translation>
    </message>
    <message>
        <source>Sha256Encode and KdEncode read only the one byte before the first zero byte.</source>
        <translation>Sha256Encode 和 KdEncode 只读取第一个零字节之前的 1 字节。</translation>
    </message>
    <message>
        <source>SHA-256 and the fingerprint of an empty text are empty.</source>
        <translation>空文本的 SHA-256 和指纹均为空。</translation>
    </message>
</context>
<context>
    <name>DigestPanel</name>
    <message>
        <source>Second text of KdEncode</source>
        <translation>KdEncode 的第二个文本</translation>
    </message>
    <message>
        <source>&amp;Second text of KdEncode:</source>
        <translation>KdEncode 的第二个文本(&amp;S)：</translation>
    </message>
    <message>
        <source>Digest &amp;now</source>
        <translation>计算摘要(&amp;N)</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Sha256::getHexMessageDigest</source>
        <translation>Sha256::getHexMessageDigest</translation>
    </message>
    <message>
        <source>Encrypt::Sha256Encode: the digest in URL-safe Base64</source>
        <translation>Encrypt::Sha256Encode：URL 安全 Base64 形式的摘要</translation>
    </message>
    <message>
        <source>MD5::Encode</source>
        <translation>MD5::Encode</translation>
    </message>
    <message>
        <source>Encrypt::KdEncode of the text and the second text</source>
        <translation>对文本与第二个文本调用 Encrypt::KdEncode</translation>
    </message>
    <message>
        <source>Choose a text or a file, then Digest now.</source>
        <translation>选择文本或文件，然后点击“计算摘要”。</translation>
    </message>
    <message>
        <source>Cancelled. The results shown are older.</source>
        <translation>已取消。所显示的仍是先前的结果。</translation>
    </message>
    <message>
        <source>%1 could not be read to its end: %2</source>
        <translation>无法完整读取 %1：%2</translation>
    </message>
    <message>
        <source>Results for %1</source>
        <translation>%1 的结果</translation>
    </message>
    <message>
        <source>Bytes digested: %L1.</source>
        <translation>已计算 %L1 字节的摘要。</translation>
    </message>
    <message>
        <source>Digesting</source>
        <translation>正在计算摘要</translation>
    </message>
</context>
<context>
    <name>DigestSource</name>
    <message>
        <source>Of a te&amp;xt</source>
        <translation>文本(&amp;X)</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Type or paste a text, or drop a file here.</source>
        <translation>在此输入或粘贴文本，或将文件拖放到此处。</translation>
    </message>
    <message>
        <source>Path of the file</source>
        <translation>文件路径</translation>
    </message>
    <message>
        <source>Path of a file; drop one here or browse for it.</source>
        <translation>文件路径；可拖放到此处，也可浏览选择。</translation>
    </message>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>浏览(&amp;W)...</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>选择文件</translation>
    </message>
    <message>
        <source>the text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Of a fil&amp;e</source>
        <translation>文件(&amp;E)</translation>
    </message>
</context>
<context>
    <name>DisplaysListCommand</name>
    <message>
        <source>Lists the system metrics instead.</source>
        <translation>改为列出系统指标。</translation>
    </message>
</context>
<context>
    <name>DisplaysPage</name>
    <message>
        <source>Details</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>&amp;Monitors</source>
        <translation>显示器(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;System metrics</source>
        <translation>系统度量(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Graphics handles</source>
        <translation>图形句柄(&amp;G)</translation>
    </message>
</context>
<context>
    <name>ElfMachine</name>
    <message>
        <source>machine %1</source>
        <translation>机器类型 %1</translation>
    </message>
    <message>
        <source>%1-bit %2</source>
        <translation>%1 位 %2</translation>
    </message>
    <message>
        <source>%1, big-endian</source>
        <translation>%1，大端序</translation>
    </message>
</context>
<context>
    <name>EncodedValue</name>
    <message>
        <source>Data without a byte cannot be stored.</source>
        <translation>无法存储没有任何字节的数据。</translation>
    </message>
    <message>
        <source>%1 cannot be stored.</source>
        <translation>无法存储 %1。</translation>
    </message>
</context>
<context>
    <name>EncryptionNote</name>
    <message>
        <source>DecryptionAES_Export cannot give this text back: its result holds at most %L1 bytes.</source>
        <translation>DecryptionAES_Export 无法还原此文本：其结果最多容纳 %L1 字节。</translation>
    </message>
    <message>
        <source>The library encrypts everything from the first zero byte on (byte %L1) as zeros: it cannot be read back.</source>
        <translation>库从第一个零字节（第 %L1 字节）起全部按零加密，无法还原。</translation>
    </message>
</context>
<context>
    <name>ExportWriter</name>
    <message>
        <source>the format knows no line ends in names of keys</source>
        <translation>该格式不支持项名称中含换行符</translation>
    </message>
    <message>
        <source>a &quot;\&quot; in it separates keys</source>
        <translation>其中的“\”会分隔项</translation>
    </message>
    <message>
        <source>a part of its name would be taken for a comment</source>
        <translation>其名称的一部分会被当作注释</translation>
    </message>
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
    <name>FamilyOption</name>
    <message>
        <source>The wide family of calls.</source>
        <translation>宽字符函数族。</translation>
    </message>
    <message>
        <source>The narrow family of calls.</source>
        <translation>窄字符函数族。</translation>
    </message>
    <message>
        <source>Either --wide or --narrow, not both.</source>
        <translation>--wide 与 --narrow 只能选其一。</translation>
    </message>
    <message>
        <source>Say --wide or --narrow: the families write differently.</source>
        <translation>请指定 --wide 或 --narrow：两族函数的写法不同。</translation>
    </message>
</context>
<context>
    <name>FileOpener</name>
    <message>
        <source>One file at a time, please.</source>
        <translation>请一次只拖放一个文件。</translation>
    </message>
</context>
<context>
    <name>FileSearchJob</name>
    <message>
        <source>Type a pattern first, such as /etc/*.conf.</source>
        <translation>请先输入搜索模式，例如 /etc/*.conf。</translation>
    </message>
    <message>
        <source>The service finds nothing for a pattern without a directory, whatever the working directory holds. Put one before it, such as ./%1.</source>
        <translation>模式中没有目录时，无论工作目录里有什么，服务都找不到任何内容。请在前面加上目录，例如 ./%1。</translation>
    </message>
    <message>
        <source>%L1 found</source>
        <translation>已找到 %L1 项</translation>
    </message>
    <message>
        <source>The folder cannot be opened: %1.</source>
        <translation>无法打开该文件夹：%1。</translation>
    </message>
    <message>
        <source>Names in the folder that are no text in the locale&apos;s encoding, and that the service leaves out: %L1.</source>
        <translation>该文件夹中不符合区域设置编码、被服务略去的名称：%L1 个。</translation>
    </message>
    <message>
        <source>The service finds nothing for %1. %2 With slashes it reads %3.</source>
        <translation>服务找不到与 %1 匹配的内容。%2用斜杠书写则为 %3。</translation>
    </message>
</context>
<context>
    <name>FilesPage</name>
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
        <source>&amp;Browse...</source>
        <translation>浏览(&amp;B)...</translation>
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
        <source>Stopped: %L1 found so far.</source>
        <translation>已停止：目前找到 %L1 项。</translation>
    </message>
    <message>
        <source>%L1 found. Size and times are reported for the first one only, and only if it is a file; dwReserved0, dwReserved1 and cAlternateFileName never are.</source>
        <translation>找到 %L1 项。只有第一项带有大小和时间，而且仅当它是文件时才有；dwReserved0、dwReserved1 和 cAlternateFileName 从不写入。</translation>
    </message>
    <message>
        <source>The rows are still those of %1: press Enter to search for the new pattern.</source>
        <translation>这些行仍是 %1 的结果：按回车键搜索新的模式。</translation>
    </message>
</context>
<context>
    <name>FindPane</name>
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
        <source>Nothing was found.</source>
        <translation>未找到任何内容。</translation>
    </message>
    <message>
        <source>Type the text to find first.</source>
        <translation>请先输入要查找的文本。</translation>
    </message>
    <message>
        <source>Find no&amp;w</source>
        <translation>立即查找(&amp;W)</translation>
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
        <source>Data</source>
        <translation>数据</translation>
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
        <source>&amp;Keys</source>
        <translation>项(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Just whole words</source>
        <translation>全字匹配(&amp;J)</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>返回(&amp;B)</translation>
    </message>
    <message>
        <source>Found place %L1 of %L2 (F3: next, Shift+F3: previous).</source>
        <translation>第 %L1 处，共 %L2 处（F3：下一处，Shift+F3：上一处）。</translation>
    </message>
    <message>
        <source>&amp;Values</source>
        <translation>值(&amp;V)</translation>
    </message>
    <message>
        <source>Match &amp;upper/lower case</source>
        <translation>区分大小写(&amp;U)</translation>
    </message>
    <message>
        <source>In the names of keys</source>
        <translation>在项的名称中</translation>
    </message>
    <message>
        <source>In the names of values</source>
        <translation>在值的名称中</translation>
    </message>
    <message>
        <source>In the data of values</source>
        <translation>在值的数据中</translation>
    </message>
    <message>
        <source>Choose where to search: in keys, in names, in values, or in several.</source>
        <translation>请选择查找范围：项、名称、值，或其中几种。</translation>
    </message>
    <message>
        <source>Name&amp;s</source>
        <translation>名称(&amp;S)</translation>
    </message>
</context>
<context>
    <name>FindWindowPanel</name>
    <message>
        <source>%1, title “%2”, at 0x%3</source>
        <translation>%1，标题“%2”，地址 0x%3</translation>
    </message>
    <message>
        <source>Class na&amp;me:</source>
        <translation>类名(&amp;M)：</translation>
    </message>
    <message>
        <source>&amp;Window name:</source>
        <translation>窗口名(&amp;W)：</translation>
    </message>
    <message>
        <source>Find &amp;now</source>
        <translation>立即查找(&amp;N)</translation>
    </message>
    <message>
        <source>null</source>
        <translation>null</translation>
    </message>
    <message>
        <source>null: no window was found</source>
        <translation>null：未找到窗口</translation>
    </message>
    <message>
        <source>Not looked at where there is a class name. Without both, the first window is found.</source>
        <translation>有类名时不看窗口名。两者都没有时，找到第一个窗口。</translation>
    </message>
    <message>
        <source>With a class name, the window name is not looked at.</source>
        <translation>有类名时不看窗口名。</translation>
    </message>
</context>
<context>
    <name>FontPreview</name>
    <message>
        <source>(not installed on this system)</source>
        <translation>（本系统未安装）</translation>
    </message>
</context>
<context>
    <name>FontRegistrationJob</name>
    <message>
        <source>Families left: %L1</source>
        <translation>还剩 %L1 个字体族</translation>
    </message>
    <message>
        <source>All families were registered before.</source>
        <translation>所有字体族此前均已注册。</translation>
    </message>
    <message>
        <source>Registered records: %L1. Families: %L2.</source>
        <translation>已注册 %L1 条记录，共 %L2 个字体族。</translation>
    </message>
    <message>
        <source>Left out, because their names do not fit a record: %1.</source>
        <translation>以下字体族因名称过长、无法写入记录而被略过：%1。</translation>
    </message>
</context>
<context>
    <name>FontsListCommand</name>
    <message>
        <source>There is no character set &quot;%1&quot;.</source>
        <translation>没有字符集“%1”。</translation>
    </message>
    <message>
        <source>Only records of this character set, by its code.</source>
        <translation>仅限此字符集（以代码指定）的记录。</translation>
    </message>
    <message>
        <source>The service reports no such font.</source>
        <translation>服务没有报告这样的字体。</translation>
    </message>
</context>
<context>
    <name>FontsPage</name>
    <message>
        <source>Global name</source>
        <translation>全局名称</translation>
    </message>
    <message>
        <source>Family to show</source>
        <translation>要显示的字体族</translation>
    </message>
    <message>
        <source>All families</source>
        <translation>所有字体族</translation>
    </message>
    <message>
        <source>Famil&amp;y:</source>
        <translation>字体族(&amp;Y)：</translation>
    </message>
    <message>
        <source>Character set to show</source>
        <translation>要显示的字符集</translation>
    </message>
    <message>
        <source>All character sets</source>
        <translation>所有字符集</translation>
    </message>
    <message>
        <source>Re&amp;gister the system&apos;s fonts</source>
        <translation>注册系统字体(&amp;G)</translation>
    </message>
    <message>
        <source>Registered fonts</source>
        <translation>已注册的字体</translation>
    </message>
    <message>
        <source>Local name</source>
        <translation>本地名称</translation>
    </message>
    <message>
        <source>Name mapping</source>
        <translation>名称映射</translation>
    </message>
    <message>
        <source>Global name:</source>
        <translation>全局名称：</translation>
    </message>
    <message>
        <source>The service reports no record of this family and character set. Names are compared exactly, upper and lower case included.</source>
        <translation>服务没有报告此字体族和字符集的记录。名称须完全一致，包括大小写。</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Registering the system&apos;s fonts</source>
        <translation>正在注册系统字体</translation>
    </message>
    <message>
        <source>Stopped. %1</source>
        <translation>已停止。%1</translation>
    </message>
    <message>
        <source>A registered face name</source>
        <translation>已注册的字体名称</translation>
    </message>
    <message>
        <source>Character &amp;set:</source>
        <translation>字符集(&amp;S)：</translation>
    </message>
    <message>
        <source>No font is registered. Host libraries register theirs when they start; the button below registers those of this system.</source>
        <translation>尚未注册任何字体。主机库会在启动时注册自己的字体；使用下方的按钮可以注册本系统的字体。</translation>
    </message>
    <message>
        <source>Records: %L1</source>
        <translation>%L1 条记录</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>字体族</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>样式</translation>
    </message>
    <message>
        <source>Character set</source>
        <translation>字符集</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Local na&amp;me:</source>
        <translation>本地名称(&amp;M)：</translation>
    </message>
</context>
<context>
    <name>FoundEntryText</name>
    <message>
        <source>The service has not written this field: a caller finds in it what its record held before the call.</source>
        <translation>服务没有写入这个字段：调用者看到的是其记录在调用之前的内容。</translation>
    </message>
</context>
<context>
    <name>FoundTable</name>
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
    <message>
        <source>Found entries</source>
        <translation>找到的条目</translation>
    </message>
    <message>
        <source>Open the folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Folder above</source>
        <translation>上一级文件夹</translation>
    </message>
</context>
<context>
    <name>GraphicsHandles</name>
    <message>
        <source>image</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>cursor image</source>
        <translation>光标图像</translation>
    </message>
    <message>
        <source>brush</source>
        <translation>画刷</translation>
    </message>
    <message>
        <source>other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>colour 0x%1</source>
        <translation>颜色 0x%1</translation>
    </message>
    <message>
        <source>at %1</source>
        <translation>位于 %1</translation>
    </message>
    <message>
        <source>%1 × %2, %3 bits a pixel, format %4</source>
        <translation>%1 × %2，每像素 %3 位，格式 %4</translation>
    </message>
</context>
<context>
    <name>HandlePanel</name>
    <message>
        <source>Graphics handles</source>
        <translation>图形句柄</translation>
    </message>
    <message>
        <source>Delete handle</source>
        <translation>删除句柄</translation>
    </message>
    <message>
        <source>No graphics handle is alive. Host libraries make them with createImage and createBrush; below you can do the same.</source>
        <translation>当前没有图形句柄。主机库用 createImage 和 createBrush 创建句柄，您也可以在下方创建。</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>&amp;New image</source>
        <translation>新建图像(&amp;N)</translation>
    </message>
    <message>
        <source>Colour of a brush, in hexadecimal</source>
        <translation>画刷颜色（十六进制）</translation>
    </message>
    <message>
        <source>New &amp;brush</source>
        <translation>新建画刷(&amp;B)</translation>
    </message>
    <message>
        <source>Dele&amp;te...</source>
        <translation>删除(&amp;T)...</translation>
    </message>
    <message>
        <source>The colour must be a hexadecimal number of up to 8 digits, such as 0x0000FF.</source>
        <translation>颜色必须是不超过 8 位的十六进制数，例如 0x0000FF。</translation>
    </message>
    <message>
        <source>The service made no handle: all 65,535 numbers are taken.</source>
        <translation>服务未能创建句柄：65,535 个编号均已占用。</translation>
    </message>
    <message>
        <source>Choose a handle first.</source>
        <translation>请先选择句柄。</translation>
    </message>
    <message>
        <source>Delete the handle %1? A host library that still uses it will find nothing there.</source>
        <translation>要删除句柄 %1 吗？仍在使用它的主机库将找不到任何对象。</translation>
    </message>
    <message>
        <source>Deleted handle %1.</source>
        <translation>已删除句柄 %1。</translation>
    </message>
    <message>
        <source>Handle</source>
        <translation>句柄</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>Made handle %1.</source>
        <translation>已创建句柄 %1。</translation>
    </message>
</context>
<context>
    <name>HelpText</name>
    <message>
        <source>this help, at the part about the page in view</source>
        <translation>本帮助，并转到当前页面的部分</translation>
    </message>
    <message>
        <source>read the page again</source>
        <translation>重新读取页面</translation>
    </message>
    <message>
        <source>search in the page</source>
        <translation>在页面中查找</translation>
    </message>
    <message>
        <source>to the next one that was found</source>
        <translation>转到下一个找到的项目</translation>
    </message>
    <message>
        <source>to the one before it, in the registry</source>
        <translation>在注册表中转到上一个找到的项目</translation>
    </message>
    <message>
        <source>to the next difference, in a profile</source>
        <translation>在配置文件中转到下一处差异</translation>
    </message>
    <message>
        <source>edit what is selected</source>
        <translation>编辑所选内容</translation>
    </message>
    <message>
        <source>confirm a text of several lines</source>
        <translation>确认多行文本</translation>
    </message>
    <message>
        <source>delete what is selected, after a question</source>
        <translation>询问后删除所选内容</translation>
    </message>
    <message>
        <source>to the folder above, in the list of found files</source>
        <translation>在找到的文件列表中转到上级文件夹</translation>
    </message>
    <message>
        <source>copy what is selected</source>
        <translation>复制所选内容</translation>
    </message>
    <message>
        <source>undo and redo a change of the page</source>
        <translation>撤销和重做页面所做的更改</translation>
    </message>
    <message>
        <source>the menu of what is selected</source>
        <translation>所选内容的菜单</translation>
    </message>
    <message>
        <source>cancel the work that covers a page, or close a dialog</source>
        <translation>取消覆盖页面的工作，或关闭对话框</translation>
    </message>
    <message>
        <source>close the program</source>
        <translation>关闭程序</translation>
    </message>
    <message>
        <source>What each page answers</source>
        <translation>各页面回答什么</translation>
    </message>
    <message>
        <source>Host libraries that were written for Windows run in this program and call its services. Every page asks the same services, and shows what a host library gets from them.</source>
        <translation>为 Windows 编写的主机库在本程序中运行，并调用它的服务。每个页面都询问同样的服务，显示主机库从中得到的结果。</translation>
    </message>
    <message>
        <source>The wide calls end in W and take names as 4-byte characters: GetPrivateProfileStringW, GetPrivateProfileIntW, GetPrivateProfileSectionW and WritePrivateProfileStringW. They read a profile as a settings file, with escapes, quotes and comments, and write it anew in that form.</source>
        <translation>宽字符调用以 W 结尾，名称采用 4 字节字符：GetPrivateProfileStringW、GetPrivateProfileIntW、GetPrivateProfileSectionW 和 WritePrivateProfileStringW。它们把配置文件当作带转义、引号和注释的设置文件来读取，并以这种形式重新写入。</translation>
    </message>
    <message>
        <source>The narrow calls end in A and take names as bytes in UTF-8: GetPrivateProfileStringA and WritePrivateProfileStringA. They read a profile line by line, drop every line without exactly one equals sign, and write what is left, sorted.</source>
        <translation>窄字符调用以 A 结尾，名称采用 UTF-8 字节：GetPrivateProfileStringA 和 WritePrivateProfileStringA。它们逐行读取配置文件，丢弃每个不是恰好含一个等号的行，并把剩下的内容排序后写入。</translation>
    </message>
    <message>
        <source>GetPrivateProfileIntA and GetPrivateProfileSectionNamesW always answer 0. A program that was built for Unicode makes the wide calls, an older one the narrow ones: one program may make both, and see two different values.</source>
        <translation>GetPrivateProfileIntA 和 GetPrivateProfileSectionNamesW 始终返回 0。按 Unicode 构建的程序使用宽字符调用，较旧的程序使用窄字符调用；同一个程序也可能两者都用，并看到两个不同的值。</translation>
    </message>
    <message>
        <source>Wide and narrow calls</source>
        <translation>宽字符调用与窄字符调用</translation>
    </message>
    <message>
        <source>from the first page to the last; the letters that are underlined in the rail choose them too</source>
        <translation>从第一个页面到最后一个页面；也可用侧栏中带下划线的字母选择</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>按键</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>&amp;About Quayside...</source>
        <translation>关于 Quayside(&amp;A)...</translation>
    </message>
</context>
<context>
    <name>HostCheckCommand</name>
    <message>
        <source>The application that is to load the libraries; otherwise the one beside this program.</source>
        <translation>要加载这些库的应用程序；未给出时为本程序旁边的那一个。</translation>
    </message>
    <message>
        <source>Loads each library for a trial too, in a process of its own. This runs its start-up code.</source>
        <translation>还在单独的进程中试着加载每个库。这会运行库的启动代码。</translation>
    </message>
    <message>
        <source>How long a trial may take; otherwise 10 seconds.</source>
        <translation>试验最多用多长时间；未给出时为 10 秒。</translation>
    </message>
    <message>
        <source>Can be loaded here.</source>
        <translation>可以在此处加载。</translation>
    </message>
    <message>
        <source>Cannot be loaded here.</source>
        <translation>无法在此处加载。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of seconds.</source>
        <translation>“%1”不是秒数。</translation>
    </message>
    <message>
        <source>%1: there is no such file.</source>
        <translation>%1：没有此文件。</translation>
    </message>
</context>
<context>
    <name>HostCheckText</name>
    <message>
        <source>It is made for %1; what is loaded here is made for %2.</source>
        <translation>它是为 %1 制作的；此处加载的是为 %2 制作的。</translation>
    </message>
    <message>
        <source>It is made for another operating system (ABI %1).</source>
        <translation>它是为另一种操作系统制作的（ABI %1）。</translation>
    </message>
    <message>
        <source>It is a program, which cannot be loaded like a library.</source>
        <translation>它是程序，不能像库那样加载。</translation>
    </message>
    <message>
        <source>It can be loaded with a program that needs it, but not later: it is marked so.</source>
        <translation>它只能随需要它的程序一起加载，之后不能再加载：它带有这样的标记。</translation>
    </message>
    <message>
        <source>What the application supplies is unknown, because %1 cannot be read. %2</source>
        <translation>无法读取 %1，因此不知道应用程序提供什么。%2</translation>
    </message>
    <message>
        <source>The application needs a library of this name and would get this one, so what the application wants of it is checked too.</source>
        <translation>应用程序需要同名的库，并会得到这一个，因此也检查了应用程序对它的要求。</translation>
    </message>
    <message>
        <source>%1, which %2 needs, is found as %3, but cannot be loaded. %4</source>
        <translation>%2 需要的 %1 找到的是 %3，但无法加载。%4</translation>
    </message>
    <message>
        <source>%1, which %2 needs, is not found.</source>
        <translation>找不到 %2 需要的 %1。</translation>
    </message>
    <message>
        <source>Passed over, because made for another machine: %1</source>
        <translation>因为是为另一种机器制作的而略过：%1</translation>
    </message>
    <message>
        <source>%1 wants version %2 of %3, which the one here has not got.</source>
        <translation>%1 要求 %3 的版本 %2，此处的没有该版本。</translation>
    </message>
    <message>
        <source>The newest one here is %1.</source>
        <translation>此处最新的是 %1。</translation>
    </message>
    <message>
        <source>Nothing here supplies %1, which %2 wants.</source>
        <translation>此处没有任何文件提供 %2 要求的 %1。</translation>
    </message>
    <message>
        <source>A library that is not found may have it.</source>
        <translation>它可能在某个未找到的库中。</translation>
    </message>
    <message>
        <source>Its code is altered when it is loaded (text relocations), which some systems forbid.</source>
        <translation>它的代码在加载时会被改动（代码段重定位），有些系统禁止这样做。</translation>
    </message>
    <message>
        <source>It wants an executable stack, which some systems forbid.</source>
        <translation>它要求可执行的栈，有些系统禁止这样做。</translation>
    </message>
    <message>
        <source>It uses %1 itself, past setPlatformServices: only a program that exports it can load the library.</source>
        <translation>它绕过 setPlatformServices，自己使用 %1：只有导出它的程序才能加载该库。</translation>
    </message>
    <message>
        <source>It defines %1 as %2, under which the application does not look for it.</source>
        <translation>它把 %1 定义为 %2，应用程序不会按此名称查找。</translation>
    </message>
</context>
<context>
    <name>HostFile</name>
    <message>
        <source>It is a script, not a library.</source>
        <translation>它是脚本，不是库。</translation>
    </message>
    <message>
        <source>It is a text for the linker, not the library that it stands for.</source>
        <translation>它是给链接器的文本，不是它所代表的库。</translation>
    </message>
    <message>
        <source>It is a Windows program or library, which Linux cannot load.</source>
        <translation>它是 Windows 程序或库，Linux 无法加载。</translation>
    </message>
    <message>
        <source>It is a static library: it can be linked, but not loaded.</source>
        <translation>它是静态库：可以链接，但不能加载。</translation>
    </message>
    <message>
        <source>It is no ELF file.</source>
        <translation>它不是 ELF 文件。</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>没有这个文件。</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>无法读取该文件。</translation>
    </message>
    <message>
        <source>It is a folder, not a file.</source>
        <translation>它是文件夹，不是文件。</translation>
    </message>
    <message>
        <source>It is a pipe, a device or a socket, not a regular file.</source>
        <translation>它是管道、设备或套接字，不是普通文件。</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>文件是空的。</translation>
    </message>
    <message>
        <source>The file is cut off: parts that are to be loaded lie beyond its end.</source>
        <translation>文件被截断：要加载的部分位于文件末尾之后。</translation>
    </message>
    <message>
        <source>The file is damaged: its tables contradict themselves.</source>
        <translation>文件已损坏：其中的表自相矛盾。</translation>
    </message>
    <message>
        <source>It is an ELF file, but not a shared library.</source>
        <translation>它是 ELF 文件，但不是共享库。</translation>
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
    <name>HostNewCommand</name>
    <message>
        <source>&quot;%1&quot; is no name of a library: letters, digits, &quot;-&quot; and &quot;_&quot; make one, a letter first.</source>
        <translation>“%1”不能作为库的名称：名称由字母、数字、“-”和“_”组成，以字母开头。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>无法写入 %1：%2。</translation>
    </message>
    <message>
        <source>%1 is there already.</source>
        <translation>%1 已存在。</translation>
    </message>
</context>
<context>
    <name>HostSymbol</name>
    <message>
        <source>%1 has it with C++ linkage: %2</source>
        <translation>%1 中有 C++ 链接的：%2</translation>
    </message>
    <message>
        <source>%1 has it with C linkage (extern &quot;C&quot;): %2</source>
        <translation>%1 中有 C 链接（extern &quot;C&quot;）的：%2</translation>
    </message>
    <message>
        <source>%1 has it in another version: %2</source>
        <translation>%1 中有另一版本的：%2</translation>
    </message>
    <message>
        <source>%1 has it with another signature: %2</source>
        <translation>%1 中有参数不同的：%2</translation>
    </message>
</context>
<context>
    <name>HostTrial</name>
    <message>
        <source>The library was loaded.</source>
        <translation>库已加载。</translation>
    </message>
    <message>
        <source>The library was not loaded: %1</source>
        <translation>库未加载：%1</translation>
    </message>
    <message>
        <source>The process crashed while it loaded the library: %1</source>
        <translation>进程在加载库时崩溃：%1</translation>
    </message>
    <message>
        <source>The library ended the process with status %1 while it was loaded.</source>
        <translation>库在加载时以状态 %1 结束了进程。</translation>
    </message>
    <message>
        <source>Loading the library was not finished within %1 seconds.</source>
        <translation>在 %1 秒内没有完成库的加载。</translation>
    </message>
    <message>
        <source>The library could not be tried: %1</source>
        <translation>无法试验该库：%1</translation>
    </message>
</context>
<context>
    <name>HostWay</name>
    <message>
        <source>not found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>by its path</source>
        <translation>按路径</translation>
    </message>
    <message>
        <source>loaded already</source>
        <translation>已加载</translation>
    </message>
    <message>
        <source>by RPATH</source>
        <translation>按 RPATH</translation>
    </message>
    <message>
        <source>by LD_LIBRARY_PATH</source>
        <translation>按 LD_LIBRARY_PATH</translation>
    </message>
    <message>
        <source>by RUNPATH</source>
        <translation>按 RUNPATH</translation>
    </message>
    <message>
        <source>by the system&apos;s list</source>
        <translation>按系统的列表</translation>
    </message>
    <message>
        <source>in a folder of the system</source>
        <translation>在系统的文件夹中</translation>
    </message>
</context>
<context>
    <name>ImportCheck</name>
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
        <source>The value &quot;%1&quot; of %2 goes with it.</source>
        <translation>%2 的值“%1”也会一并删除。</translation>
    </message>
    <message>
        <source>The key %1 goes with it, with everything in it.</source>
        <translation>项 %1 及其全部内容也会一并删除。</translation>
    </message>
    <message>
        <source>A name of separators alone names no value.</source>
        <translation>只含分隔符的名称不指任何值。</translation>
    </message>
    <message>
        <source>The separators in the name lead to a value of a sub-key.</source>
        <translation>名称中含有分隔符，所指的是子项中的值。</translation>
    </message>
    <message>
        <source>It has no data and becomes the number 0.</source>
        <translation>该值没有数据，将变为数值 0。</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Statements of the file</source>
        <translation>文件中的语句</translation>
    </message>
    <message>
        <source>Import %1</source>
        <translation>导入 %1</translation>
    </message>
    <message>
        <source>I&amp;mport</source>
        <translation>导入(&amp;M)</translation>
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
    <message>
        <source>In the store now</source>
        <translation>存储中现有</translation>
    </message>
    <message>
        <source>&amp;Only what is altered, refused, overwritten or deleted</source>
        <translation>仅显示有改动、被拒绝、会覆盖或会删除的语句(&amp;O)</translation>
    </message>
    <message>
        <source>Code page of the file</source>
        <translation>文件的代码页</translation>
    </message>
    <message>
        <source>&amp;Code page of this file of version 4:</source>
        <translation>此第 4 版文件的代码页(&amp;C)：</translation>
    </message>
    <message>
        <source>Some of its bytes are no text in this one.</source>
        <translation>按此代码页，文件中有些字节不是文本。</translation>
    </message>
</context>
<context>
    <name>ImportOverlaps</name>
    <message>
        <source>The same key as under %1 in line %2: all root keys are one.</source>
        <translation>与第 %2 行 %1 下的项相同：所有根项是同一个项。</translation>
    </message>
    <message>
        <source>Deletes what line %2 puts under %1: all root keys are one.</source>
        <translation>将删除第 %2 行放在 %1 下的内容：所有根项是同一个项。</translation>
    </message>
    <message>
        <source>The same value as under %1 in line %2: all root keys are one, and the later statement wins.</source>
        <translation>与第 %2 行 %1 下的值相同：所有根项是同一个项，以后面的语句为准。</translation>
    </message>
    <message>
        <source>%1 differs from &quot;%2&quot; in case only: two keys here, one on Windows.</source>
        <translation>%1 与“%2”仅大小写不同：此处是两个项，在 Windows 上是一个。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; differs from &quot;%2&quot; in case only: two values here, one on Windows.</source>
        <translation>“%1”与“%2”仅大小写不同：此处是两个值，在 Windows 上是一个。</translation>
    </message>
</context>
<context>
    <name>ImportPlan</name>
    <message>
        <source>Line %1 comes later and wins: all root keys are one.</source>
        <translation>以后面的第 %1 行为准：所有根项是同一个项。</translation>
    </message>
    <message>
        <source>unreadable: %1</source>
        <translation>无法读取：%1</translation>
    </message>
</context>
<context>
    <name>ImportText</name>
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
        <source>Refused: %1</source>
        <translation>拒绝：%1</translation>
    </message>
    <message>
        <source>The key is there already</source>
        <translation>该项已存在</translation>
    </message>
    <message>
        <source>The value is there already</source>
        <translation>该值已存在且相同</translation>
    </message>
    <message>
        <source>Overwrites the value</source>
        <translation>覆盖该值</translation>
    </message>
    <message>
        <source>Overwrites the value. %1</source>
        <translation>覆盖该值。%1</translation>
    </message>
    <message>
        <source>As written in the file: %L1. Altered: %L2. Refused: %L3.</source>
        <translation>与文件一致：%L1。有改动：%L2。被拒绝：%L3。</translation>
    </message>
    <message>
        <source>Values that are overwritten: %L1.</source>
        <translation>被覆盖的值：%L1。</translation>
    </message>
</context>
<context>
    <name>InputDevice</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>The standard input</source>
        <translation>标准输入</translation>
    </message>
    <message>
        <source>The descriptor %1</source>
        <translation>描述符 %1</translation>
    </message>
</context>
<context>
    <name>Interruption</name>
    <message>
        <source>Interrupted: nothing more has been done.</source>
        <translation>已中断：未再执行任何操作。</translation>
    </message>
</context>
<context>
    <name>KeyArgument</name>
    <message>
        <source>%1 begins with no known root.</source>
        <translation>%1 的开头不是已知的根。</translation>
    </message>
    <message>
        <source>%1: there is no such key.</source>
        <translation>%1：没有此键。</translation>
    </message>
</context>
<context>
    <name>KeyInput</name>
    <message>
        <source>&amp;Under a pass phrase, as DecryptionAES_Export does</source>
        <translation>使用密码短语，与 DecryptionAES_Export 相同(&amp;U)</translation>
    </message>
    <message>
        <source>Pass phra&amp;se:</source>
        <translation>密码短语(&amp;S)：</translation>
    </message>
    <message>
        <source>I&amp;V:</source>
        <translation>初始向量(&amp;V)：</translation>
    </message>
    <message>
        <source>Enter the pass phrase first.</source>
        <translation>请先输入密码短语。</translation>
    </message>
    <message>
        <source>&amp;Key:</source>
        <translation>密钥(&amp;K)：</translation>
    </message>
    <message>
        <source>Show what is typ&amp;ed</source>
        <translation>显示输入内容(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;With key and IV</source>
        <translation>使用密钥和初始向量(&amp;W)</translation>
    </message>
    <message>
        <source>Written in hexadeci&amp;mal</source>
        <translation>以十六进制书写(&amp;M)</translation>
    </message>
</context>
<context>
    <name>KeyOptions</name>
    <message>
        <source>Pass phrase</source>
        <translation>口令</translation>
    </message>
    <message>
        <source>A descriptor is a number, not &quot;%1&quot;.</source>
        <translation>描述符是数字，而不是“%1”。</translation>
    </message>
    <message>
        <source>The pass phrase is the contents of this file; without any such option it is asked for on the terminal.</source>
        <translation>口令为此文件的内容；若无此类选项，则在终端上询问。</translation>
    </message>
    <message>
        <source>The pass phrase is read from this descriptor.</source>
        <translation>从此描述符读取口令。</translation>
    </message>
    <message>
        <source>The key is the contents of this file.</source>
        <translation>密钥为此文件的内容。</translation>
    </message>
    <message>
        <source>The IV is the contents of this file.</source>
        <translation>IV 为此文件的内容。</translation>
    </message>
    <message>
        <source>Key and IV are pairs of hexadecimal digits.</source>
        <translation>密钥和 IV 为成对的十六进制数字。</translation>
    </message>
    <message>
        <source>Give a pass phrase, or both --key-file and --iv-file.</source>
        <translation>请给出口令，或同时给出 --key-file 和 --iv-file。</translation>
    </message>
    <message>
        <source>The pass phrase is empty.</source>
        <translation>口令为空。</translation>
    </message>
    <message>
        <source>Pass phrase again</source>
        <translation>再次输入口令</translation>
    </message>
    <message>
        <source>The two pass phrases are not the same.</source>
        <translation>两次输入的口令不一致。</translation>
    </message>
</context>
<context>
    <name>KeyPanel</name>
    <message>
        <source>Unknown to the service, as every other code: these always read as up.</source>
        <translation>服务不识别的键，其他代码亦同：始终读作弹起。</translation>
    </message>
    <message>
        <source>Re&amp;turn down</source>
        <translation>Return 按下(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Space down</source>
        <translation>Space 按下(&amp;S)</translation>
    </message>
    <message>
        <source>Code of a virtual key</source>
        <translation>虚拟键代码</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>An&amp;y code:</source>
        <translation>任意代码(&amp;Y)：</translation>
    </message>
    <message>
        <source>Keys known to the service</source>
        <translation>服务能识别的键</translation>
    </message>
    <message>
        <source>Keys unknown to the service</source>
        <translation>服务不识别的键</translation>
    </message>
    <message>
        <source>The event of a modifier key itself tells the state before it: the next event of keyboard or mouse tells the new one. No toggle state is told.</source>
        <translation>修饰键自身的事件给出该事件之前的状态，下一次键盘或鼠标事件才给出新状态。不提供切换状态。</translation>
    </message>
    <message>
        <source>Keys known to the service, as of the last event; left and right cannot be told apart</source>
        <translation>服务能识别的键，以最近一次事件为准；左右键无法区分</translation>
    </message>
    <message>
        <source>Report:</source>
        <translation>上报：</translation>
    </message>
    <message>
        <source>setKeyPressed: tells the service that a key is down, as host libraries do.</source>
        <translation>setKeyPressed：告诉服务某个键已按下，与主机库的做法相同。</translation>
    </message>
</context>
<context>
    <name>KeyStates</name>
    <message>
        <source>down</source>
        <translation>按下</translation>
    </message>
    <message>
        <source>up</source>
        <translation>弹起</translation>
    </message>
    <message>
        <source>always up</source>
        <translation>始终弹起</translation>
    </message>
    <message>
        <source>getKeyState answers %1: %2</source>
        <translation>getKeyState 返回 %1：%2</translation>
    </message>
</context>
<context>
    <name>KeyTree</name>
    <message>
        <source>Keys</source>
        <translation>项</translation>
    </message>
</context>
<context>
    <name>LeaksPane</name>
    <message>
        <source>Key</source>
        <translation>键</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Graphics object</source>
        <translation>图形对象</translation>
    </message>
    <message>
        <source>Array</source>
        <translation>数组</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>种类</translation>
    </message>
    <message>
        <source>Made for</source>
        <translation>用于</translation>
    </message>
    <message>
        <source>Handle</source>
        <translation>句柄</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>调用</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Caller</source>
        <translation>调用者</translation>
    </message>
    <message>
        <source>Leaks</source>
        <translation>泄漏</translation>
    </message>
    <message>
        <source>What was opened or made and never given back, with the call that made it.</source>
        <translation>打开或创建后从未归还的对象，以及创建它的调用。</translation>
    </message>
    <message>
        <source>Everything that was opened or made has been given back.</source>
        <translation>打开或创建的对象都已归还。</translation>
    </message>
    <message>
        <source>The recording has no end: the program is still running, or was killed.</source>
        <translation>记录没有结尾：程序仍在运行，或已被终止。</translation>
    </message>
    <message>
        <source>A recording does not show whether an array was freed.</source>
        <translation>记录文件无法显示数组是否已释放。</translation>
    </message>
</context>
<context>
    <name>LineDeviation</name>
    <message>
        <source>The quotes are no part of the value.</source>
        <translation>引号不属于该值。</translation>
    </message>
    <message>
        <source>The backslash at its end joins the next line to it.</source>
        <translation>末尾的反斜杠将下一行与之相连。</translation>
    </message>
    <message>
        <source>The byte order mark is no part of the value.</source>
        <translation>字节顺序标记不属于该值。</translation>
    </message>
    <message>
        <source>What begins with “@” is read as a value of another form.</source>
        <translation>以“@”开头的内容被读作另一种形式的值。</translation>
    </message>
    <message>
        <source>The spaces around the value are lost.</source>
        <translation>值两端的空白会丢失。</translation>
    </message>
    <message>
        <source>It does not look like an entry, but is one to the family.</source>
        <translation>看起来不是条目，但该函数族将其视为条目。</translation>
    </message>
    <message>
        <source>The family knows it by other names: key “%1”, section “%2”.</source>
        <translation>该函数族以其他名称识别它：键“%1”，节“%2”。</translation>
    </message>
    <message>
        <source>A carriage return in it ends the line.</source>
        <translation>其中的回车符使该行结束。</translation>
    </message>
    <message>
        <source>A carriage return in it is lost.</source>
        <translation>其中的回车符会丢失。</translation>
    </message>
    <message>
        <source>A zero byte in it ends names and values.</source>
        <translation>其中的零字节使名称和值结束。</translation>
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
    <message>
        <source>cut at “;”</source>
        <translation>在“;”处截断</translation>
    </message>
    <message>
        <source>list</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>escape</source>
        <translation>转义</translation>
    </message>
    <message>
        <source>A comma without quotes makes it a list, which reads as empty.</source>
        <translation>未加引号的逗号使其成为列表，读取结果为空。</translation>
    </message>
    <message>
        <source>It ends at the “;” without quotes.</source>
        <translation>它在未加引号的“;”处结束。</translation>
    </message>
    <message>
        <source>A backslash in it begins an escape.</source>
        <translation>其中的反斜杠开始一个转义序列。</translation>
    </message>
    <message>
        <source>untold</source>
        <translation>未查看</translation>
    </message>
    <message>
        <source>Not looked at: the file is too large for that.</source>
        <translation>未查看：文件太大。</translation>
    </message>
</context>
<context>
    <name>ListedValue</name>
    <message>
        <source>No longer there</source>
        <translation>已不存在</translation>
    </message>
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
</context>
<context>
    <name>LogEntry</name>
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
</context>
<context>
    <name>LogPage</name>
    <message>
        <source>Log</source>
        <translation>日志</translation>
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
        <source>Reading the log</source>
        <translation>正在读取日志</translation>
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
        <source>File:</source>
        <translation>文件：</translation>
    </message>
    <message>
        <source>The log cannot be written to %1.</source>
        <translation>无法将日志写入 %1。</translation>
    </message>
    <message>
        <source>%1 was not written: this is the log itself.</source>
        <translation>未写入 %1：它就是日志本身。</translation>
    </message>
    <message>
        <source>Saved to %2. Lines: %L1.</source>
        <translation>已保存到 %2，共 %L1 行。</translation>
    </message>
    <message>
        <source>Lines shown: %L1 of %L2</source>
        <translation>显示 %L1 行，共 %L2 行</translation>
    </message>
    <message>
        <source>Sa&amp;ve as...</source>
        <translation>另存为(&amp;V)...</translation>
    </message>
</context>
<context>
    <name>LogTable</name>
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
    <name>MadeStatement</name>
    <message>
        <source>The registry service has failed %L1 of the changes: nothing is saved.</source>
        <translation>注册表服务未能完成 %L1 项更改：未保存任何内容。</translation>
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
    <name>MetricsPanel</name>
    <message>
        <source>Index</source>
        <translation>索引</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>System metrics</source>
        <translation>系统度量</translation>
    </message>
    <message>
        <source>Index of a metric</source>
        <translation>度量索引</translation>
    </message>
    <message>
        <source>GetSystemMetrics answers %1</source>
        <translation>GetSystemMetrics 返回 %1</translation>
    </message>
    <message>
        <source>Any ind&amp;ex:</source>
        <translation>任意索引(&amp;E)：</translation>
    </message>
</context>
<context>
    <name>Minimiser</name>
    <message>
        <source>There is no call %1 of a service.</source>
        <translation>没有编号为 %1 的服务调用。</translation>
    </message>
    <message>
        <source>The services crash before it, in call %1.</source>
        <translation>服务在它之前的调用 %1 中崩溃。</translation>
    </message>
    <message>
        <source>Call %1 cannot be performed. %2</source>
        <translation>无法执行调用 %1。%2</translation>
    </message>
</context>
<context>
    <name>MonitorList</name>
    <message>
        <source>Monitor %1</source>
        <translation>显示器 %1</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>主显示器</translation>
    </message>
    <message>
        <source>%1 (primary)</source>
        <translation>%1（主）</translation>
    </message>
</context>
<context>
    <name>MonitorMap</name>
    <message>
        <source>Map of the monitors</source>
        <translation>显示器布局图</translation>
    </message>
    <message>
        <source>Click to choose a point, or move it with the arrow keys: 20 pixels, with Ctrl 200, with Shift 1. Home takes the pointer&apos;s position.</source>
        <translation>单击以选择一点，或用方向键移动：每次 20 像素，按住 Ctrl 为 200，按住 Shift 为 1。Home 键取指针位置。</translation>
    </message>
</context>
<context>
    <name>MonitorQuery</name>
    <message>
        <source>The monitor that holds the point, else null.</source>
        <translation>包含该点的显示器，否则为 null。</translation>
    </message>
    <message>
        <source>The monitor that holds the point, else the primary one.</source>
        <translation>包含该点的显示器，否则为主显示器。</translation>
    </message>
    <message>
        <source>The monitor that holds the point, else the one with the nearest edge line; edge lines go on beyond the corners.</source>
        <translation>包含该点的显示器，否则为边线最近的显示器；边线延伸到角之外。</translation>
    </message>
</context>
<context>
    <name>MonitorTable</name>
    <message>
        <source>Monitor</source>
        <translation>显示器</translation>
    </message>
    <message>
        <source>Handle</source>
        <translation>句柄</translation>
    </message>
    <message>
        <source>Left, top, right, bottom. Right and bottom are the last pixel inside, so that right - left is the width less one.</source>
        <translation>左、上、右、下。右和下是区域内的最后一个像素，因此右减左等于宽度减一。</translation>
    </message>
    <message>
        <source>Monitors</source>
        <translation>显示器</translation>
    </message>
</context>
<context>
    <name>NameDialog</name>
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
    <name>OperationsPane</name>
    <message>
        <source>Operation</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Manager</source>
        <translation>管理器</translation>
    </message>
    <message>
        <source>Calls</source>
        <translation>调用次数</translation>
    </message>
    <message>
        <source>Failures</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Never returned</source>
        <translation>未返回</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Longest</source>
        <translation>最长</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>always the same result</source>
        <translation>返回值始终相同</translation>
    </message>
    <message>
        <source>Operations that are not supported have the same result for all arguments.</source>
        <translation>不支持的操作对所有参数都返回同样的结果。</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>How often each operation was called, how often it failed, and how long it took.</source>
        <translation>每个操作被调用、失败的次数，以及所用的时间。</translation>
    </message>
</context>
<context>
    <name>Output</name>
    <message>
        <source>Kind</source>
        <translation>种类</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>键</translation>
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
        <source>Stored text</source>
        <translation>存储的文本</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>之前</translation>
    </message>
    <message>
        <source>After</source>
        <translation>之后</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>节</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>函数族</translation>
    </message>
    <message>
        <source>Found by</source>
        <translation>找到者</translation>
    </message>
    <message>
        <source>Wide</source>
        <translation>宽字符</translation>
    </message>
    <message>
        <source>Narrow</source>
        <translation>窄字符</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>差异</translation>
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
        <source>Created</source>
        <translation>创建时间</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>读取时间</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>写入时间</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>回答</translation>
    </message>
    <message>
        <source>Face</source>
        <translation>字体名</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>全名</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>样式</translation>
    </message>
    <message>
        <source>Character set</source>
        <translation>字符集</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>粗细</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>斜体</translation>
    </message>
    <message>
        <source>Installed</source>
        <translation>已安装</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>显示器</translation>
    </message>
    <message>
        <source>Full area</source>
        <translation>全部区域</translation>
    </message>
    <message>
        <source>Work area</source>
        <translation>工作区</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>主显示器</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>索引</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>代码</translation>
    </message>
    <message>
        <source>Known</source>
        <translation>已知</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Digest</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>库</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>严重程度</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Wanted</source>
        <translation>要求</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>此处</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>调用</translation>
    </message>
    <message>
        <source>In the second</source>
        <translation>在第二个中</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>深度</translation>
    </message>
    <message>
        <source>Thread</source>
        <translation>线程</translation>
    </message>
    <message>
        <source>Caller</source>
        <translation>调用者</translation>
    </message>
    <message>
        <source>Manager</source>
        <translation>管理器</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>返回值</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>用时</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Calls</source>
        <translation>调用次数</translation>
    </message>
    <message>
        <source>Failures</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Absent</source>
        <translation>不存在</translation>
    </message>
    <message>
        <source>Never returned</source>
        <translation>未返回</translation>
    </message>
    <message>
        <source>Longest</source>
        <translation>最长</translation>
    </message>
    <message>
        <source>Handle</source>
        <translation>句柄</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>部分</translation>
    </message>
    <message>
        <source>Different</source>
        <translation>不同</translation>
    </message>
    <message>
        <source>Not performed</source>
        <translation>未执行</translation>
    </message>
    <message>
        <source>First difference</source>
        <translation>首个差异</translation>
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
    <message>
        <source>Which keys and values a host library finds in the registry, and what it reads from each; entries that it cannot read are marked. Values and keys can be changed, imported from registry files and exported to them.</source>
        <translation>主机库在注册表中找到哪些项和值，以及从每一个读到什么；无法读取的条目会标出。可以更改值和项，也可以从注册表文件导入或导出到其中。</translation>
    </message>
    <message>
        <source>What the wide and the narrow calls read from a private profile (an INI file), line by line and side by side, and what a write through either of them would make of the file.</source>
        <translation>宽字符调用和窄字符调用从私有配置文件（INI 文件）读到什么，逐行并排显示，以及通过任一种调用写入会使文件变成什么样。</translation>
    </message>
    <message>
        <source>Which files a search with findFirstFile finds, with which attributes and times, and what the calls for paths and directories answer.</source>
        <translation>用 findFirstFile 搜索会找到哪些文件及其属性和时间，以及路径和目录的调用返回什么。</translation>
    </message>
    <message>
        <source>Which fonts host libraries have registered, and which of them an enumeration by family and character set finds.</source>
        <translation>主机库注册了哪些字体，以及按字体族和字符集枚举会找到其中哪些。</translation>
    </message>
    <message>
        <source>Which monitors there are, which of them MonitorFromPoint answers for a point, what the system metrics are, and which graphics handles are alive.</source>
        <translation>有哪些显示器，MonitorFromPoint 对某一点返回其中哪一个，系统度量是多少，以及有哪些存活的图形句柄。</translation>
    </message>
    <message>
        <source>Which keys and mouse buttons read as down, where the pointer is, which cursor is set, and which window FindWindowW finds.</source>
        <translation>哪些键和鼠标按钮读作按下，指针在哪里，设置了哪个光标，以及 FindWindowW 找到哪个窗口。</translation>
    </message>
    <message>
        <source>What texts and files become when they are encrypted, decrypted, digested or coded as Base64 in the way of the host libraries.</source>
        <translation>文本和文件按主机库的方式加密、解密、计算摘要或做 Base64 编码后变成什么。</translation>
    </message>
    <message>
        <source>What has happened in this run of the program and in earlier ones, with every change that was made from its window.</source>
        <translation>本程序此次及以往运行中发生了什么，包括在其窗口中所做的每一处更改。</translation>
    </message>
    <message>
        <source>Tr&amp;ace</source>
        <translation>跟踪(&amp;A)</translation>
    </message>
    <message>
        <source>What host libraries asked the services for and what they were told, call by call, from a recording that may still be written: failures, time, what was never given back, and what was asked for and is not there.</source>
        <translation>主机库向服务请求了什么、得到了什么，逐个调用显示，来自可能仍在写入的记录文件：失败、用时、从未归还的对象，以及请求了却不存在的内容。</translation>
    </message>
</context>
<context>
    <name>PageFooter</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Read again (F5)</source>
        <translation>重新读取 (F5)</translation>
    </message>
    <message>
        <source>Undo (Ctrl+Z)</source>
        <translation>撤销 (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Redo (Ctrl+Shift+Z)</source>
        <translation>重做 (Ctrl+Shift+Z)</translation>
    </message>
    <message>
        <source>Read at %1</source>
        <translation>读取于 %1</translation>
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
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>%1 (path is missing)</source>
        <translation>%1（路径不存在）</translation>
    </message>
    <message>
        <source>Asked about %1.</source>
        <translation>查询的是 %1。</translation>
    </message>
    <message>
        <source>%1 AddBackslash makes %2 of it.</source>
        <translation>%1AddBackslash 将其变为 %2。</translation>
    </message>
</context>
<context>
    <name>Player</name>
    <message>
        <source>(procedure)</source>
        <translation>（过程）</translation>
    </message>
    <message>
        <source>called %1 times</source>
        <translation>被调用 %1 次</translation>
    </message>
    <message>
        <source>(handle)</source>
        <translation>（句柄）</translation>
    </message>
    <message>
        <source>the one that was given</source>
        <translation>传入的那个句柄</translation>
    </message>
    <message>
        <source>another one</source>
        <translation>另一个句柄</translation>
    </message>
    <message>
        <source>written beyond the buffer</source>
        <translation>写到了缓冲区之外</translation>
    </message>
</context>
<context>
    <name>PointPanel</name>
    <message>
        <source>Pointer</source>
        <translation>指针</translation>
    </message>
    <message>
        <source>Pointer:</source>
        <translation>指针：</translation>
    </message>
    <message>
        <source>Point &amp;X:</source>
        <translation>点 X(&amp;X)：</translation>
    </message>
    <message>
        <source>Point &amp;Y:</source>
        <translation>点 Y(&amp;Y)：</translation>
    </message>
</context>
<context>
    <name>ProfileAskingJob</name>
    <message>
        <source>Values: %1</source>
        <translation>值：%1 个</translation>
    </message>
</context>
<context>
    <name>ProfileCheckCommand</name>
    <message>
        <source>Tells comments too.</source>
        <translation>也指出注释。</translation>
    </message>
</context>
<context>
    <name>ProfileCheckJob</name>
    <message>
        <source>The line is not UTF-8.</source>
        <translation>该行不是 UTF-8。</translation>
    </message>
    <message>
        <source>The family reads UTF-8 alone.</source>
        <translation>该函数族只读取 UTF-8。</translation>
    </message>
    <message>
        <source>The family finds it only after a call that reads all sections.</source>
        <translation>只有在某次调用读取了所有节之后，该函数族才能找到它。</translation>
    </message>
</context>
<context>
    <name>ProfileColumns</name>
    <message>
        <source>Narrow: %1
Wide: %2</source>
        <translation>窄字符：%1
宽字符：%2</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>（无名称）</translation>
    </message>
    <message>
        <source>(not found)</source>
        <translation>（找不到）</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>（空）</translation>
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
    <message>
        <source>Whether the families read the same value</source>
        <translation>两种接口读到的值是否相同</translation>
    </message>
    <message>
        <source>(not asked yet)</source>
        <translation>（尚未读取）</translation>
    </message>
    <message>
        <source>The families have not been asked for this value yet.</source>
        <translation>尚未通过两种接口读取此值。</translation>
    </message>
    <message>
        <source>Not UTF-8: the calls of both families lose what it says.</source>
        <translation>不是 UTF-8：两种接口都会丢失其内容。</translation>
    </message>
</context>
<context>
    <name>ProfileDifferenceDialog</name>
    <message>
        <source>No family of calls can delete: a null value is written as an empty one, and a call without a key is refused. So these lines are taken out of the file, and the others stay as they are.</source>
        <translation>两种接口都不能删除：空指针值会写成空值，没有键的调用会被拒绝。因此从文件中删除以下各行，其余各行保持原样。</translation>
    </message>
    <message>
        <source>The narrow family writes the whole file anew, sorted, and only what it has kept. The file would change like this:</source>
        <translation>窄字符接口会按排序重写整个文件，且只写入它保留的内容。文件将有以下变化：</translation>
    </message>
    <message>
        <source>The wide family writes the whole file anew, sorted, and only what it has kept. The file would change like this:</source>
        <translation>宽字符接口会按排序重写整个文件，且只写入它保留的内容。文件将有以下变化：</translation>
    </message>
    <message>
        <source>Changes to the file</source>
        <translation>对文件的更改</translation>
    </message>
    <message>
        <source>Lines to be deleted</source>
        <translation>将要删除的行</translation>
    </message>
    <message>
        <source>&amp;Write all the same</source>
        <translation>仍然写入(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Delete these lines</source>
        <translation>删除这些行(&amp;D)</translation>
    </message>
    <message>
        <source>Lines before and after</source>
        <translation>更改前后的各行</translation>
    </message>
    <message>
        <source>Lines removed: %1. Lines added: %2.</source>
        <translation>删除的行：%1。添加的行：%2。</translation>
    </message>
    <message>
        <source>These lines are not in the file&apos;s encoding, and their bytes would be lost: %1.</source>
        <translation>以下各行不符合文件的编码，其字节将会丢失：%1。</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between numbers of lines</comment>
        <translation>、</translation>
    </message>
    <message>
        <source>The narrow family finds the key “%1” here.</source>
        <translation>窄字符接口在此处找到键“%1”。</translation>
    </message>
    <message>
        <source>The narrow family finds the section “%1” here.</source>
        <translation>窄字符接口在此处找到节“%1”。</translation>
    </message>
    <message>
        <source>The wide family finds the key “%1” here.</source>
        <translation>宽字符接口在此处找到键“%1”。</translation>
    </message>
    <message>
        <source>The wide family finds the section “%1” here.</source>
        <translation>宽字符接口在此处找到节“%1”。</translation>
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
        <source>The file is too large for more than its lines.</source>
        <translation>文件太大，只能显示各行。</translation>
    </message>
    <message>
        <source>They are the first %1.</source>
        <translation>显示的是前 %1 行。</translation>
    </message>
    <message>
        <source>The wide family cannot read it: it answers with the default.</source>
        <translation>宽字符接口无法读取它：返回默认值。</translation>
    </message>
    <message>
        <source>The narrow family reads it, but cannot write to it.</source>
        <translation>窄字符接口可以读取它，但无法写入。</translation>
    </message>
</context>
<context>
    <name>ProfileEdit</name>
    <message>
        <source>Prints the difference, and writes nothing.</source>
        <translation>输出差异，不写入任何内容。</translation>
    </message>
    <message>
        <source>Writes even where other lines change.</source>
        <translation>即使其他行会改变也写入。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>%1 could not be written.</source>
        <translation>未能写入 %1。</translation>
    </message>
    <message>
        <source>Not written: other lines of %1 would change, as --dry-run shows; --force writes it.</source>
        <translation>未写入：%1 的其他行会改变（见 --dry-run）；--force 可强制写入。</translation>
    </message>
</context>
<context>
    <name>ProfileEditPanel</name>
    <message>
        <source>Change or add a value</source>
        <translation>修改或添加值</translation>
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
        <source>&amp;Write</source>
        <translation>写入(&amp;W)</translation>
    </message>
    <message>
        <source>Keep a &amp;backup</source>
        <translation>保留备份(&amp;B)</translation>
    </message>
    <message>
        <source>Copies the file beside itself, as .bak, before it is written.</source>
        <translation>写入之前在文件旁复制一份 .bak 备份。</translation>
    </message>
    <message>
        <source>Dele&amp;te</source>
        <translation>删除(&amp;T)</translation>
    </message>
    <message>
        <source>Takes lines out of the file: neither family of calls can delete.</source>
        <translation>从文件中删除行：两种接口都不能删除。</translation>
    </message>
    <message>
        <source>This &amp;key</source>
        <translation>此键(&amp;K)</translation>
    </message>
    <message>
        <source>The whole &amp;section</source>
        <translation>整个节(&amp;S)</translation>
    </message>
    <message>
        <source>Not read yet</source>
        <translation>尚未读取</translation>
    </message>
    <message>
        <source>Throu&amp;gh:</source>
        <translation>通过(&amp;G)：</translation>
    </message>
</context>
<context>
    <name>ProfileEditor</name>
    <message>
        <source>Open a file first.</source>
        <translation>请先打开文件。</translation>
    </message>
    <message>
        <source>Trying the change on a copy</source>
        <translation>正在副本上试写</translation>
    </message>
    <message>
        <source>Nothing written.</source>
        <translation>未写入任何内容。</translation>
    </message>
    <message>
        <source>Nothing deleted.</source>
        <translation>未删除任何内容。</translation>
    </message>
    <message>
        <source>The file has been changed meanwhile: the change is tried again.</source>
        <translation>文件在此期间已被更改：正在重新试写。</translation>
    </message>
    <message>
        <source>Nothing written: the backup copy could not be made.</source>
        <translation>未写入：无法创建备份。</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>正在写入</translation>
    </message>
    <message>
        <source>The value could not be written to %1.</source>
        <translation>无法将值写入 %1。</translation>
    </message>
    <message>
        <source>Trying the change on a copy of %1</source>
        <translation>正在 %1 的副本上试写</translation>
    </message>
    <message>
        <source>Writing %1</source>
        <translation>正在写入 %1</translation>
    </message>
    <message>
        <source>%1 has been deleted since it was read. Writing makes a new file that holds nothing but this value.</source>
        <translation>%1 在读取之后已被删除。写入会新建一个只含此值的文件。</translation>
    </message>
    <message>
        <source>%1 has been replaced by another file since it was read. Writing changes the file that lies there now.</source>
        <translation>%1 在读取之后已被另一个文件取代。写入会更改现在的那个文件。</translation>
    </message>
    <message>
        <source>Not the file that was read</source>
        <translation>已不是所读取的文件</translation>
    </message>
    <message>
        <source>&amp;Write all the same</source>
        <translation>仍然写入(&amp;W)</translation>
    </message>
    <message>
        <source>Nothing written: the family reads this value already.</source>
        <translation>未写入：该接口读取的已是此值。</translation>
    </message>
    <message>
        <source>Written.</source>
        <translation>已写入。</translation>
    </message>
    <message>
        <source>Deleted.</source>
        <translation>已删除。</translation>
    </message>
    <message>
        <source>Written; the backup copy is %1.</source>
        <translation>已写入；备份为 %1。</translation>
    </message>
    <message>
        <source>Deleted; the backup copy is %1.</source>
        <translation>已删除；备份为 %1。</translation>
    </message>
    <message>
        <source>The file differs from what was shown: look at its lines.</source>
        <translation>文件与预览的结果不同，请查看各行。</translation>
    </message>
    <message>
        <source>There is not memory enough to try the change on a copy.</source>
        <translation>内存不足，无法在副本上试做此更改。</translation>
    </message>
    <message>
        <source>The change is tried on a copy first, which could not be written in %1: %2.</source>
        <translation>更改会先在副本上试行，而副本无法写入 %1：%2。</translation>
    </message>
    <message>
        <source>There is not memory enough to read the file.</source>
        <translation>内存不足，无法读取该文件。</translation>
    </message>
    <message>
        <source>There is not memory enough to read %1 once more: the change may have been made, and cannot be undone.</source>
        <translation>内存不足，无法再次读取 %1：更改可能已完成，且无法撤消。</translation>
    </message>
</context>
<context>
    <name>ProfileEncodingBox</name>
    <message>
        <source>Encoding of lines that are not UTF-8</source>
        <translation>非 UTF-8 行的编码</translation>
    </message>
    <message>
        <source>Lines that are not UTF-8 are shown in this encoding. The calls of both families read them as before.</source>
        <translation>非 UTF-8 的行按此编码显示，两种接口的读取结果不变。</translation>
    </message>
    <message>
        <source>windows-1252 GB18030 Big5 Shift_JIS EUC-KR windows-1251</source>
        <comment>Encodings, the one that is most likely where the language is spoken first</comment>
        <translation>GB18030 Big5 windows-1252 Shift_JIS EUC-KR windows-1251</translation>
    </message>
    <message>
        <source>UTF-8, as the calls read</source>
        <translation>UTF-8，与接口读取的一致</translation>
    </message>
</context>
<context>
    <name>ProfileEntries</name>
    <message>
        <source>%1: there is no such file.</source>
        <translation>%1：没有此文件。</translation>
    </message>
</context>
<context>
    <name>ProfileFileBar</name>
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
        <source>Open a profile</source>
        <translation>打开配置文件</translation>
    </message>
    <message>
        <source>Profiles (*.ini);;All files (*)</source>
        <translation>配置文件 (*.ini);;所有文件 (*)</translation>
    </message>
</context>
<context>
    <name>ProfileFindBar</name>
    <message>
        <source>Text to find</source>
        <translation>要查找的文本</translation>
    </message>
    <message>
        <source>Ne&amp;xt line</source>
        <translation>下一行(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>隐藏(&amp;H)</translation>
    </message>
</context>
<context>
    <name>ProfileForm</name>
    <message>
        <source>Encoding: %1. Byte order mark: %2. Line ends: %3.</source>
        <translation>编码：%1。字节顺序标记：%2。行尾：%3。</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>有</translation>
    </message>
    <message>
        <source>no</source>
        <translation>无</translation>
    </message>
    <message>
        <source>not UTF-8 (lines: %1, the first is %2)</source>
        <translation>非 UTF-8（此类行共 %1 行，第一处在第 %2 行）</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>mixed, %1</source>
        <translation>混合，%1</translation>
    </message>
    <message>
        <source>The encoding changes: %1, then %2.</source>
        <translation>编码改变：原为 %1，之后为 %2。</translation>
    </message>
    <message>
        <source>The byte order mark goes.</source>
        <translation>字节顺序标记将消失。</translation>
    </message>
    <message>
        <source>A byte order mark is added.</source>
        <translation>将添加字节顺序标记。</translation>
    </message>
    <message>
        <source>The line ends change: %1, then %2.</source>
        <translation>行尾改变：原为 %1，之后为 %2。</translation>
    </message>
    <message>
        <source>The last line gets a line end.</source>
        <translation>最后一行将加上行尾。</translation>
    </message>
</context>
<context>
    <name>ProfileGetCommand</name>
    <message>
        <source>%1 has no entry &quot;%2&quot; in the section &quot;%3&quot;.</source>
        <translation>%1 的节“%3”中没有条目“%2”。</translation>
    </message>
</context>
<context>
    <name>ProfileHistory</name>
    <message>
        <source>The file stays as it is.</source>
        <translation>文件保持原样。</translation>
    </message>
    <message>
        <source>%1 could not be put back.</source>
        <translation>无法恢复 %1。</translation>
    </message>
    <message>
        <source>Undone: %1.</source>
        <translation>已撤销：%1。</translation>
    </message>
    <message>
        <source>Made again: %1.</source>
        <translation>已重做：%1。</translation>
    </message>
    <message>
        <source>%1 is no longer as the change &quot;%2&quot; left it. Putting it back loses what was written to it meanwhile.</source>
        <translation>%1 已不是更改“%2”之后的样子。恢复它会丢失此后写入的内容。</translation>
    </message>
    <message>
        <source>The file has changed</source>
        <translation>文件已改变</translation>
    </message>
    <message>
        <source>&amp;Put it back</source>
        <translation>恢复(&amp;P)</translation>
    </message>
    <message>
        <source>Set &quot;%1&quot; in %2</source>
        <translation>设置 %2 中的“%1”</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot; from %2</source>
        <translation>从 %2 删除“%1”</translation>
    </message>
    <message>
        <source>Delete [%1] from %2</source>
        <translation>从 %2 删除 [%1]</translation>
    </message>
</context>
<context>
    <name>ProfileLinesPane</name>
    <message>
        <source>Shown as:</source>
        <translation>显示为：</translation>
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
        <source>%1. %2</source>
        <comment>name and form of a file</comment>
        <translation>%1。%2</translation>
    </message>
    <message>
        <source>Line %1. Narrow: %2 Wide: %3</source>
        <translation>第 %1 行。窄字符：%2 宽字符：%3</translation>
    </message>
    <message>
        <source>Searching the lines</source>
        <translation>正在查找</translation>
    </message>
    <message>
        <source>No line contains “%1”.</source>
        <translation>没有包含“%1”的行。</translation>
    </message>
    <message>
        <source>Stopped before all lines were searched.</source>
        <translation>已停止：尚未查找完所有行。</translation>
    </message>
</context>
<context>
    <name>ProfileMergeCommand</name>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>Not merged: line %1 of the input. %2 --force merges what the family reads.</source>
        <translation>未合并：输入的第 %1 行。%2 --force 将合并该系列所读取的内容。</translation>
    </message>
</context>
<context>
    <name>ProfileReadingsPane</name>
    <message>
        <source>Readings of both families</source>
        <translation>两种接口的读取结果</translation>
    </message>
    <message>
        <source>Onl&amp;y differences</source>
        <translation>仅显示差异(&amp;Y)</translation>
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
        <source>Asks the calls of both families for every value of a large file, one after the other. Otherwise those in view are asked for.</source>
        <translation>依次通过两种接口读取大文件中的每个值。否则只读取当前可见的值。</translation>
    </message>
    <message>
        <source>Values: %1. Read differently: %2.</source>
        <translation>值：%1 个，其中读取结果不同的：%2 个。</translation>
    </message>
    <message>
        <source>Values: %1. Asked for so far: %2. Read differently: %3.</source>
        <translation>值：%1 个，已读取：%2 个，其中读取结果不同的：%3 个。</translation>
    </message>
    <message>
        <source>Asking both families for all values</source>
        <translation>正在通过两种接口读取所有值</translation>
    </message>
    <message>
        <source>Stopped. %1</source>
        <translation>已停止。%1</translation>
    </message>
    <message>
        <source>Looking for a difference</source>
        <translation>正在查找差异</translation>
    </message>
    <message>
        <source>The families read all values alike.</source>
        <translation>两种接口对所有值的读取结果相同。</translation>
    </message>
    <message>
        <source>Next difference</source>
        <translation>下一处差异</translation>
    </message>
    <message>
        <source>Delete key</source>
        <translation>删除键</translation>
    </message>
    <message>
        <source>Of the values that have been asked for, none is read differently.</source>
        <translation>已读取的值中没有读取结果不同的。</translation>
    </message>
    <message>
        <source>Read all val&amp;ues</source>
        <translation>读取所有值(&amp;U)</translation>
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
    <message>
        <source>There is no such file: nothing can be deleted from it.</source>
        <translation>文件不存在：无可删除。</translation>
    </message>
    <message>
        <source>Nothing deleted: the narrow family does not find that.</source>
        <translation>未删除：窄字符接口找不到该项。</translation>
    </message>
    <message>
        <source>Nothing deleted: the wide family does not find that.</source>
        <translation>未删除：宽字符接口找不到该项。</translation>
    </message>
    <message>
        <source>%1 is larger than %2 MiB: no change can be tried on a copy of it.</source>
        <translation>%1 大于 %2 MiB：无法在其副本上试做更改。</translation>
    </message>
    <message>
        <source>Nothing deleted: the wide family does not find that. What stands under [General] is in no section for it: leave the section empty.</source>
        <translation>未删除任何内容：宽字符接口找不到它。对它而言，[General] 下的内容不属于任何节：请将节留空。</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Type the path of a file first.</source>
        <translation>请先输入文件路径。</translation>
    </message>
    <message>
        <source>Reading through both families</source>
        <translation>正在通过两种接口读取</translation>
    </message>
    <message>
        <source>There is no such file: both families read it as empty. Writing a value creates it.</source>
        <translation>文件不存在：两种接口都将其读作空。写入值时会创建该文件。</translation>
    </message>
    <message>
        <source>Stopped. %1</source>
        <translation>已停止。%1</translation>
    </message>
    <message>
        <source>Find the next line</source>
        <translation>查找下一行</translation>
    </message>
    <message>
        <source>There are no lines to search. Open a file first.</source>
        <translation>没有可查找的行。请先打开文件。</translation>
    </message>
    <message>
        <source>Stopped before the file was read.</source>
        <translation>已停止：文件尚未读取。</translation>
    </message>
    <message>
        <source>Next difference</source>
        <translation>下一处差异</translation>
    </message>
    <message>
        <source>The file has been changed by somebody else, and was read again. %1</source>
        <translation>文件已被其他程序更改，并已重新读取。%1</translation>
    </message>
    <message>
        <source>%1 has been deleted: both families read it as empty.</source>
        <translation>%1 已被删除：两种接口都将其读作空。</translation>
    </message>
    <message>
        <source>This value has not been read yet.</source>
        <translation>此值尚未读取。</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>Shows this help.</source>
        <translation>显示此帮助。</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>显示版本。</translation>
    </message>
    <message>
        <source>Works on this file instead of the usual store.</source>
        <translation>使用此文件代替通常的存储。</translation>
    </message>
    <message>
        <source>Prints one JSON document.</source>
        <translation>输出一个 JSON 文档。</translation>
    </message>
    <message>
        <source>Prints nothing but errors.</source>
        <translation>只输出错误。</translation>
    </message>
    <message>
        <source>Which command?</source>
        <translation>要执行哪个命令？</translation>
    </message>
    <message>
        <source>There is no command &quot;%1&quot;.</source>
        <translation>没有命令“%1”。</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>用法：%1</translation>
    </message>
    <message>
        <source>Try &quot;quaysidectl --help&quot;.</source>
        <translation>请试用“quaysidectl --help”。</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>命令：</translation>
    </message>
    <message>
        <source>Status: 0 done, found or equal; 1 a clean no; 2 wrong usage; 3 could not be done.</source>
        <translation>状态：0 已完成、已找到或相等；1 明确的否；2 用法错误；3 无法完成。</translation>
    </message>
    <message>
        <source>--store needs the name of a file.</source>
        <translation>--store 需要文件名。</translation>
    </message>
    <message>
        <source>Saves a damaged store without its damaged lines.</source>
        <translation>保存已损坏的存储，不含损坏的行。</translation>
    </message>
    <message>
        <source>%1 Nothing is saved; --force saves the rest.</source>
        <translation>%1未保存任何内容；--force 将保存其余部分。</translation>
    </message>
    <message>
        <source>The argument &quot;%1&quot; is not in the encoding of the locale.</source>
        <translation>参数“%1”不符合区域设置的编码。</translation>
    </message>
    <message>
        <source>Put &quot;--&quot; before arguments that begin with &quot;-&quot;.</source>
        <translation>请在以“-”开头的参数之前加上“--”。</translation>
    </message>
</context>
<context>
    <name>ReadingRemark</name>
    <message>
        <source>Not found under this name</source>
        <translation>按此名称找不到</translation>
    </message>
</context>
<context>
    <name>RecordedProgram</name>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>无法启动 %1：%2</translation>
    </message>
</context>
<context>
    <name>RecordingArgument</name>
    <message>
        <source>%L1 more lines cannot be read.</source>
        <translation>另有 %L1 行无法读取。</translation>
    </message>
    <message>
        <source>Only these calls: 10-20,op:NAME,caller:TEXT,manager:NAME,thread:NUMBER.</source>
        <translation>只取这些调用：10-20,op:NAME,caller:TEXT,manager:NAME,thread:NUMBER。</translation>
    </message>
    <message>
        <source>Only calls that failed or never returned.</source>
        <translation>只取失败或未返回的调用。</translation>
    </message>
</context>
<context>
    <name>RecordingBar</name>
    <message>
        <source>File of the recording</source>
        <translation>记录文件的路径</translation>
    </message>
    <message>
        <source>Path of a recording</source>
        <translation>记录文件路径</translation>
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
        <source>Open a recording</source>
        <translation>打开记录文件</translation>
    </message>
    <message>
        <source>Recordings (*.trace)</source>
        <translation>记录文件 (*.trace)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
</context>
<context>
    <name>RecordingJob</name>
    <message>
        <source>Calls looked through: %1</source>
        <translation>已检查的调用：%1</translation>
    </message>
    <message>
        <source>Calls read: %1</source>
        <translation>已读取的调用：%1</translation>
    </message>
</context>
<context>
    <name>RecordingOutput</name>
    <message>
        <source>The recording cannot be written: %1.</source>
        <translation>无法写入记录文件：%1。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>无法写入 %1：%2。</translation>
    </message>
    <message>
        <source>With --json, name a file to write.</source>
        <translation>使用 --json 时，请指定要写入的文件。</translation>
    </message>
</context>
<context>
    <name>RedirectedName</name>
    <message>
        <source>A name with a &quot;\&quot; in it: a host library that opens this key gets the key &quot;%1&quot; in %2.</source>
        <translation>名称中含有“\”：主机库打开此项时，得到的是 %2 中的项“%1”。</translation>
    </message>
    <message>
        <source>A name with a &quot;\&quot; in it: a host library that asks for this value gets the value &quot;%1&quot; in %2.</source>
        <translation>名称中含有“\”：主机库读取此值时，得到的是 %2 中的值“%1”。</translation>
    </message>
</context>
<context>
    <name>RegFileReader</name>
    <message>
        <source>The file is neither UTF-16 with a byte order mark nor UTF-8.</source>
        <translation>该文件既不是带字节顺序标记的 UTF-16，也不是 UTF-8。</translation>
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
    <name>RegistryActions</name>
    <message>
        <source>&quot;%1&quot; in %2 is no longer there.</source>
        <translation>%2 中的“%1”已不存在。</translation>
    </message>
    <message>
        <source>%1 of the selected values in %2 are no longer there.</source>
        <translation>%2 中所选的值有 %1 个已不存在。</translation>
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
        <source>Export key...</source>
        <translation>导出项...</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>导入...</translation>
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
        <source>Copy data</source>
        <translation>复制数据</translation>
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
        <source>&amp;String (REG_SZ)...</source>
        <translation>字符串 (REG_SZ)(&amp;S)...</translation>
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
        <source>Searc&amp;h...</source>
        <translation>查找(&amp;H)...</translation>
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
        <source>%1 is no longer there.</source>
        <translation>%1 已不存在。</translation>
    </message>
    <message>
        <source>Search...</source>
        <translation>查找...</translation>
    </message>
    <message>
        <source>Rename key...</source>
        <translation>重命名项...</translation>
    </message>
    <message>
        <source>Copy key as .reg</source>
        <translation>将项复制为 .reg</translation>
    </message>
    <message>
        <source>Rename value...</source>
        <translation>重命名值...</translation>
    </message>
    <message>
        <source>Copy as .reg</source>
        <translation>复制为 .reg</translation>
    </message>
</context>
<context>
    <name>RegistryClipboard</name>
    <message>
        <source>Copied %1.</source>
        <translation>已复制 %1。</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>正在复制</translation>
    </message>
    <message>
        <source>Cancelled: nothing was copied.</source>
        <translation>已取消：未复制任何内容。</translation>
    </message>
    <message>
        <source>Copied as the text of a registry file. Values: %1. Left out: %2.</source>
        <translation>已按注册表文件的文本复制。值：%1 个。略过：%2 个。</translation>
    </message>
</context>
<context>
    <name>RegistryCompareCommand</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Statements that the registry would refuse: %L1.</source>
        <translation>注册表将拒绝的语句：%L1。</translation>
    </message>
</context>
<context>
    <name>RegistryContents</name>
    <message>
        <source>The file cannot be read.</source>
        <translation>无法读取该文件。</translation>
    </message>
</context>
<context>
    <name>RegistryCopyCommand</name>
    <message>
        <source>Names what would be copied, and does nothing.</source>
        <translation>列出将被复制的内容，不执行任何操作。</translation>
    </message>
    <message>
        <source>The root itself cannot be copied, and nothing can take its place.</source>
        <translation>不能复制根本身，也不能取代它。</translation>
    </message>
    <message>
        <source>%1 is below the key that is to be copied.</source>
        <translation>%1 位于要复制的键之下。</translation>
    </message>
</context>
<context>
    <name>RegistryDeleteCommand</name>
    <message>
        <source>%1 is not empty. %2 Use -r to delete all of it.</source>
        <translation>%1 不为空。%2 请用 -r 删除全部内容。</translation>
    </message>
    <message>
        <source>A key with everything in it.</source>
        <translation>连同键中的全部内容。</translation>
    </message>
    <message>
        <source>Names what would go, and deletes nothing.</source>
        <translation>列出将被删除的内容，不执行删除。</translation>
    </message>
    <message>
        <source>%1 has no value &quot;%2&quot;.</source>
        <translation>%1 中没有值“%2”。</translation>
    </message>
</context>
<context>
    <name>RegistryDifference</name>
    <message>
        <source>unreadable: %1</source>
        <translation>无法读取：%1</translation>
    </message>
</context>
<context>
    <name>RegistryEditor</name>
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
        <source>&quot;%1&quot; has more than %2 KiB of data: too much to edit here.</source>
        <translation>“%1”的数据超过 %2 KiB，过长，无法在此编辑。</translation>
    </message>
    <message>
        <source>The value &quot;%1&quot; of %2 stands for a key of that name: a host library that opens the key succeeds. Nothing was changed.</source>
        <translation>%2 的值“%1”可当作同名的项：主机库能够打开该项。未作任何更改。</translation>
    </message>
    <message>
        <source>New key</source>
        <translation>新建项</translation>
    </message>
    <message>
        <source>Create the key %1</source>
        <translation>创建项 %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in %2 stays as it is: nothing was typed that would change it.</source>
        <translation>%2 中的“%1”保持不变：输入的内容不会改变它。</translation>
    </message>
    <message>
        <source>Set &quot;%1&quot; in %2</source>
        <translation>设置 %2 中的“%1”</translation>
    </message>
</context>
<context>
    <name>RegistryExportCommand</name>
    <message>
        <source>There is no encoding &quot;%1&quot;.</source>
        <translation>没有编码“%1”。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>The standard output cannot be written: %1</source>
        <translation>无法写入标准输出：%1</translation>
    </message>
    <message>
        <source>utf-16, as Windows writes it, or utf-8.</source>
        <translation>utf-16（Windows 所写的编码）或 utf-8。</translation>
    </message>
    <message>
        <source>With --json, name a file to export to.</source>
        <translation>使用 --json 时，请指定要导出到的文件。</translation>
    </message>
    <message>
        <source>Left out, with the reasons in comments of the file: %L1.</source>
        <translation>已略去（原因见文件中的注释）：%L1。</translation>
    </message>
</context>
<context>
    <name>RegistryFindCommand</name>
    <message>
        <source>&quot;%1&quot;: %2</source>
        <translation>“%1”：%2</translation>
    </message>
    <message>
        <source>In names of keys.</source>
        <translation>在键名中。</translation>
    </message>
    <message>
        <source>In names of values.</source>
        <translation>在值名中。</translation>
    </message>
    <message>
        <source>In data.</source>
        <translation>在数据中。</translation>
    </message>
    <message>
        <source>Upper and lower case letters differ.</source>
        <translation>区分大小写字母。</translation>
    </message>
    <message>
        <source>Whole words only.</source>
        <translation>仅限整个单词。</translation>
    </message>
    <message>
        <source>TEXT is a regular expression.</source>
        <translation>TEXT 是正则表达式。</translation>
    </message>
</context>
<context>
    <name>RegistryGetCommand</name>
    <message>
        <source>Prints the type instead of the data.</source>
        <translation>输出类型而不是数据。</translation>
    </message>
    <message>
        <source>Prints the text that the store keeps.</source>
        <translation>输出存储中保存的文本。</translation>
    </message>
    <message>
        <source>How the data is written: text, hex (the bytes that a host library gets) or c.</source>
        <translation>数据的书写形式：text、hex（主机库得到的字节）或 c。</translation>
    </message>
    <message>
        <source>There is no format &quot;%1&quot;.</source>
        <translation>没有格式“%1”。</translation>
    </message>
    <message>
        <source>%1 has no value &quot;%2&quot;.</source>
        <translation>%1 中没有值“%2”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of %2 cannot be read: %3</source>
        <translation>无法读取 %2 中的“%1”：%3</translation>
    </message>
    <message>
        <source>Either --type or --raw, not both.</source>
        <translation>--type 和 --raw 只能选其一。</translation>
    </message>
</context>
<context>
    <name>RegistryHistory</name>
    <message>
        <source>and %1 more</source>
        <translation>以及另外 %1 个</translation>
    </message>
    <message>
        <source>Changing the store</source>
        <translation>正在更改存储</translation>
    </message>
    <message>
        <source>%1: the store has changed meanwhile. Nothing was changed.</source>
        <translation>%1：其间存储已有变化。未做任何更改。</translation>
    </message>
    <message>
        <source>Done: %1.</source>
        <translation>已完成：%1。</translation>
    </message>
    <message>
        <source>Undoing</source>
        <translation>正在撤消</translation>
    </message>
    <message>
        <source>Redoing</source>
        <translation>正在重做</translation>
    </message>
    <message>
        <source>Undone: %1.</source>
        <translation>已撤消：%1。</translation>
    </message>
    <message>
        <source>Redone: %1.</source>
        <translation>已重做：%1。</translation>
    </message>
    <message>
        <source>%1 Left as somebody else has changed them: %2.</source>
        <translation>%1 其间被他人更改而保留的：%2 个。</translation>
    </message>
    <message>
        <source>Changed meanwhile</source>
        <translation>其间已被更改</translation>
    </message>
    <message>
        <source>%1: somebody else has changed this since. It would be lost.</source>
        <translation>%1：此后他人更改过这些内容，那些更改将丢失。</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>覆盖</translation>
    </message>
    <message>
        <source>Only the rest</source>
        <translation>仅其余部分</translation>
    </message>
    <message>
        <source>Cancelled half-way: %1. Undo (Ctrl+Z) restores what was.</source>
        <translation>中途取消：%1。撤销 (Ctrl+Z) 可恢复原状。</translation>
    </message>
    <message>
        <source>Cancelled half-way: %1. Redo (Ctrl+Shift+Z) does the rest.</source>
        <translation>中途取消：%1。重做 (Ctrl+Shift+Z) 可完成其余部分。</translation>
    </message>
</context>
<context>
    <name>RegistryImportCommand</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>Prints what becomes of each statement, and does nothing.</source>
        <translation>输出每条语句的结果，不执行任何操作。</translation>
    </message>
    <message>
        <source>Takes all keys of the file to be below this one.</source>
        <translation>将文件中的所有键视为位于此键之下。</translation>
    </message>
    <message>
        <source>The code page of a file of version 4.</source>
        <translation>版本 4 文件的代码页。</translation>
    </message>
    <message>
        <source>Copies the store&apos;s file there first.</source>
        <translation>先将存储的文件复制到该处。</translation>
    </message>
    <message>
        <source>There is no code page &quot;%1&quot;.</source>
        <translation>没有代码页“%1”。</translation>
    </message>
    <message>
        <source>%1 has bytes that are none of the code page %2.</source>
        <translation>%1 含有不属于代码页 %2 的字节。</translation>
    </message>
</context>
<context>
    <name>RegistryImportJob</name>
    <message>
        <source>There is not enough memory for its statements.</source>
        <translation>内存不足，容纳不下其中的语句。</translation>
    </message>
</context>
<context>
    <name>RegistryListCommand</name>
    <message>
        <source>Everything below the key, too.</source>
        <translation>也包括键下的全部内容。</translation>
    </message>
</context>
<context>
    <name>RegistryPage</name>
    <message>
        <source>Values: %1. Sub-keys: %2.</source>
        <translation>值：%1 个。子项：%2 个。</translation>
    </message>
    <message>
        <source>The host library has set up no settings store: every call to the registry fails.</source>
        <translation>主机库尚未建立设置存储：所有注册表调用都会失败。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>All four root keys are one here.</source>
        <translation>四个根项在此是同一个。</translation>
    </message>
    <message>
        <source>What is set under one of HKEY_CLASSES_ROOT, HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE and HKEY_USERS is found under each of them.</source>
        <translation>在 HKEY_CLASSES_ROOT、HKEY_CURRENT_USER、HKEY_LOCAL_MACHINE 和 HKEY_USERS 其中一个下设置的内容，在每一个下都能找到。</translation>
    </message>
    <message>
        <source>There is no key %1: the nearest one above it is shown.</source>
        <translation>没有键 %1：显示的是其上方最近的键。</translation>
    </message>
    <message>
        <source>The key has no value %1.</source>
        <translation>此键没有值 %1。</translation>
    </message>
</context>
<context>
    <name>RegistryRemover</name>
    <message>
        <source>%1 values</source>
        <translation>%1 个值</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Delete this value of %1?</source>
        <translation>要删除 %1 中的这个值吗？</translation>
    </message>
    <message>
        <source>Delete these values of %1?</source>
        <translation>要删除 %1 中的这些值吗？</translation>
    </message>
    <message>
        <source>Deleting</source>
        <translation>正在删除</translation>
    </message>
    <message>
        <source>Deleted from %1: %2.</source>
        <translation>已从 %1 删除 %2。</translation>
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
        <source>Cancelled: nothing was deleted.</source>
        <translation>已取消：未删除任何内容。</translation>
    </message>
    <message>
        <source>Delete the key %1?</source>
        <translation>要删除项 %1 吗？</translation>
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
        <source>Delete %1 from %2</source>
        <translation>从 %2 删除 %1</translation>
    </message>
    <message>
        <source>Delete the key %1</source>
        <translation>删除项 %1</translation>
    </message>
</context>
<context>
    <name>RegistryRenameCommand</name>
    <message>
        <source>The root itself cannot be renamed.</source>
        <translation>不能重命名根本身。</translation>
    </message>
    <message>
        <source>%1 has no value &quot;%2&quot;.</source>
        <translation>%1 中没有值“%2”。</translation>
    </message>
    <message>
        <source>Names what would be renamed, and does nothing.</source>
        <translation>列出将被重命名的内容，不执行任何操作。</translation>
    </message>
</context>
<context>
    <name>RegistryRenamer</name>
    <message>
        <source>Rename the key</source>
        <translation>重命名项</translation>
    </message>
    <message>
        <source>The root itself cannot be renamed.</source>
        <translation>不能重命名根本身。</translation>
    </message>
    <message>
        <source>Reading the key</source>
        <translation>正在读取项</translation>
    </message>
    <message>
        <source>Cancelled: nothing was renamed.</source>
        <translation>已取消：未重命名任何内容。</translation>
    </message>
    <message>
        <source>%1 is no longer there.</source>
        <translation>%1 已不存在。</translation>
    </message>
    <message>
        <source>Rename the key %1 to &quot;%2&quot;</source>
        <translation>将项 %1 重命名为“%2”</translation>
    </message>
    <message>
        <source>Rename the value</source>
        <translation>重命名值</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands in the root itself, where the registry can list it but not set it.</source>
        <translation>“%1”直接位于根中，注册表只能列出它，不能设置它。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the mark of a key that was created: rename the key.</source>
        <translation>“%1”是已创建的项的标记：请重命名该项。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no longer there.</source>
        <translation>“%1”已不存在。</translation>
    </message>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot; in %3</source>
        <translation>将 %3 中的“%1”重命名为“%2”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; keeps its name.</source>
        <translation>“%1”的名称不变。</translation>
    </message>
</context>
<context>
    <name>RegistrySearchJob</name>
    <message>
        <source>Values: %1. Found: %2.</source>
        <translation>值：%1 个。找到：%2 处。</translation>
    </message>
    <message>
        <source>unreadable: %1</source>
        <translation>无法读取：%1</translation>
    </message>
</context>
<context>
    <name>RegistrySetCommand</name>
    <message>
        <source>There is no type &quot;%1&quot;.</source>
        <translation>没有类型“%1”。</translation>
    </message>
    <message>
        <source>A host library reads of it: %1</source>
        <translation>主机库从中读到：%1</translation>
    </message>
    <message>
        <source>The type, such as REG_SZ or DWORD.</source>
        <translation>类型，例如 REG_SZ 或 DWORD。</translation>
    </message>
    <message>
        <source>Sets nothing where the service would alter it.</source>
        <translation>若服务会更改数据，则不设置。</translation>
    </message>
    <message>
        <source>Tells what would be done, and does nothing.</source>
        <translation>说明将执行什么，不执行任何操作。</translation>
    </message>
    <message>
        <source>Not set: %1</source>
        <translation>未设置：%1</translation>
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
    <message>
        <source>it is not a regular file.</source>
        <translation>它不是普通文件。</translation>
    </message>
    <message>
        <source>Cancelled: nothing was imported.</source>
        <translation>已取消：未导入任何内容。</translation>
    </message>
    <message>
        <source>Import %1</source>
        <translation>导入 %1</translation>
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
    <name>RemovalText</name>
    <message>
        <source>and %1 more</source>
        <translation>以及另外 %1 个</translation>
    </message>
    <message>
        <source>Keys of the same name go with everything in them:</source>
        <translation>同名的项及其全部内容也会一并删除：</translation>
    </message>
    <message>
        <source>Keys below it that go with it: %1. Values: %2.</source>
        <translation>将一并删除的下级项：%1 个；值：%2 个。</translation>
    </message>
    <message>
        <source>The value &quot;%1&quot; of %2 goes with it.</source>
        <translation>%2 的值“%1”也会一并删除。</translation>
    </message>
</context>
<context>
    <name>ReplayProcess</name>
    <message>
        <source>No process can be started for the replay: %1</source>
        <translation>无法为重放启动进程：%1</translation>
    </message>
</context>
<context>
    <name>Replays</name>
    <message>
        <source>The services have crashed in call %1: %2.</source>
        <translation>服务在调用 %1 中崩溃：%2。</translation>
    </message>
    <message>
        <source>Performed: %L1 calls, %L2 of them differ. Not performed: %L3.</source>
        <translation>已执行 %L1 个调用，其中 %L2 个不同；未执行 %L3 个。</translation>
    </message>
</context>
<context>
    <name>Secret</name>
    <message>
        <source>There is no terminal to ask for the secret on: name a file.</source>
        <translation>没有可供询问密钥信息的终端：请指定文件。</translation>
    </message>
    <message>
        <source>The terminal would show the secret: name a file.</source>
        <translation>终端会显示密钥信息：请指定文件。</translation>
    </message>
    <message>
        <source>No secret has been typed.</source>
        <translation>未输入密钥。</translation>
    </message>
</context>
<context>
    <name>SetValueCheck</name>
    <message>
        <source>nothing</source>
        <translation>空</translation>
    </message>
</context>
<context>
    <name>SkipReasonText</name>
    <message>
        <source>It never returned.</source>
        <translation>它没有返回。</translation>
    </message>
    <message>
        <source>It was left by an exception or a jump.</source>
        <translation>它因异常或跳转而离开。</translation>
    </message>
    <message>
        <source>There is no such operation here.</source>
        <translation>此处没有这个操作。</translation>
    </message>
    <message>
        <source>A value is hidden in the recording.</source>
        <translation>记录中隐藏了一个值。</translation>
    </message>
    <message>
        <source>A value is shortened in the recording.</source>
        <translation>记录中截短了一个值。</translation>
    </message>
    <message>
        <source>An argument could not be read by the recorder.</source>
        <translation>记录程序无法读取一个参数。</translation>
    </message>
    <message>
        <source>No call of the recording made the handle.</source>
        <translation>记录中没有创建该句柄的调用。</translation>
    </message>
    <message>
        <source>The call that made the handle made none here.</source>
        <translation>创建该句柄的调用在此处没有创建句柄。</translation>
    </message>
    <message>
        <source>The handle had been given back.</source>
        <translation>该句柄已被归还。</translation>
    </message>
    <message>
        <source>A root must not be given back.</source>
        <translation>不得归还根键。</translation>
    </message>
    <message>
        <source>It asks a library of the recorded program.</source>
        <translation>它询问的是被记录程序的库。</translation>
    </message>
    <message>
        <source>The service made it within another call.</source>
        <translation>它是服务在另一个调用之内发出的。</translation>
    </message>
    <message>
        <source>What was at its path is not in the bundle.</source>
        <translation>其路径上原有的内容不在包中。</translation>
    </message>
    <message>
        <source>A change that may matter was not performed before it.</source>
        <translation>在它之前有一个可能相关的更改没有执行。</translation>
    </message>
    <message>
        <source>The services have no such manager.</source>
        <translation>服务没有这个管理器。</translation>
    </message>
</context>
<context>
    <name>StandardOutput</name>
    <message>
        <source>The standard output cannot be written: %1.</source>
        <translation>无法写入标准输出：%1。</translation>
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
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>F1: what each page answers, what wide and narrow calls are, and keys</source>
        <translation>F1：各页面回答什么、什么是宽字符调用和窄字符调用，以及按键</translation>
    </message>
</context>
<context>
    <name>Store</name>
    <message>
        <source>The host library has set up no store.</source>
        <translation>主机库未设置存储。</translation>
    </message>
    <message>
        <source>%1: there is no such file.</source>
        <translation>%1：没有此文件。</translation>
    </message>
    <message>
        <source>The store %1 cannot be read.</source>
        <translation>无法读取存储 %1。</translation>
    </message>
    <message>
        <source>The store %1 could not be saved.</source>
        <translation>无法保存存储 %1。</translation>
    </message>
    <message>
        <source>%1: there is no such folder.</source>
        <translation>%1：没有此文件夹。</translation>
    </message>
    <message>
        <source>%1 is the store&apos;s own file.</source>
        <translation>%1 是存储自身的文件。</translation>
    </message>
    <message>
        <source>The store %1 has lines that are no entries.</source>
        <translation>存储 %1 中有不是条目的行。</translation>
    </message>
</context>
<context>
    <name>StoreFault</name>
    <message>
        <source>The store %1 cannot be written: changes last until the program ends.</source>
        <translation>无法写入存储 %1：更改只保留到程序结束。</translation>
    </message>
</context>
<context>
    <name>StoreFollower</name>
    <message>
        <source>The store is in step with its file %1 again.</source>
        <translation>存储与其文件 %1 再次一致。</translation>
    </message>
    <message>
        <source>The store has been saved to %1; what the file lacked is gone.</source>
        <translation>存储已保存到 %1；文件中缺少的内容已丢失。</translation>
    </message>
</context>
<context>
    <name>StoreGate</name>
    <message>
        <source>Comparing the store with its file</source>
        <translation>正在比较存储与其文件</translation>
    </message>
    <message>
        <source>Cancelled: nothing was changed.</source>
        <translation>已取消：未作任何更改。</translation>
    </message>
    <message>
        <source>The store&apos;s file</source>
        <translation>存储的文件</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>写入</translation>
    </message>
    <message>
        <source>Export first...</source>
        <translation>先导出...</translation>
    </message>
    <message>
        <source>An export first keeps what host libraries can read now.</source>
        <translation>先导出可保留主机库目前能读取的内容。</translation>
    </message>
    <message>
        <source>Before anything is written, a copy keeps the file as it is.</source>
        <translation>写入之前，会先保留一份该文件的原样副本。</translation>
    </message>
</context>
<context>
    <name>StoreWatch</name>
    <message>
        <source>The store&apos;s file %1 is gone: another program has deleted or moved it. The store still holds what it had read. Its next change makes a new file that holds nothing but that change.</source>
        <translation>存储的文件 %1 已不存在：其他程序已将其删除或移走。存储中仍是先前读取的内容。下一次更改将生成一个只含该更改的新文件。</translation>
    </message>
    <message>
        <source>Another program has replaced the store&apos;s file %1.</source>
        <translation>其他程序已替换存储的文件 %1。</translation>
    </message>
    <message>
        <source>Another program has changed the store&apos;s file %1.</source>
        <translation>其他程序已更改存储的文件 %1。</translation>
    </message>
    <message>
        <source>The store&apos;s file %1 is damaged: it has lines that are no entries. The store leaves them out, and its next change writes the file without them.</source>
        <translation>存储的文件 %1 已损坏：其中有不是条目的行。存储会忽略这些行，下一次更改写入的文件将不再包含它们。</translation>
    </message>
    <message>
        <source>The store could not be saved to %1, for which a full disk may be the reason. The last changes are not in the file, and end with the program unless a later change is saved.</source>
        <translation>存储未能保存到 %1，原因可能是磁盘已满。最近的更改不在该文件中；除非以后的更改保存成功，否则将随程序结束而丢失。</translation>
    </message>
    <message>
        <source>The store still holds what it had read. Its next change makes it read the file, and what the file lacks is gone.</source>
        <translation>存储中仍是先前读取的内容。下一次更改会使其重新读取该文件，文件中没有的内容将会丢失。</translation>
    </message>
    <message>
        <source>The file is damaged, too: it has lines that are no entries, and that change writes it without them.</source>
        <translation>该文件也已损坏：其中有不是条目的行，该次更改写入的文件将不再包含它们。</translation>
    </message>
</context>
<context>
    <name>StoredValue</name>
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
        <source>Tag &quot;%1&quot; is refused: it is no number, or too large a one</source>
        <translation>类型标记“%1”被拒绝：不是数字，或数字过大</translation>
    </message>
    <message>
        <source>Tag %1 is refused</source>
        <translation>类型标记 %1 被拒绝</translation>
    </message>
</context>
<context>
    <name>SubjectButton</name>
    <message>
        <source>Show the key %1</source>
        <translation>显示键 %1</translation>
    </message>
    <message>
        <source>Show the profile %1</source>
        <translation>显示配置文件 %1</translation>
    </message>
    <message>
        <source>Show the files %1</source>
        <translation>显示文件 %1</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>显示(&amp;W)</translation>
    </message>
    <message>
        <source>Show on its page</source>
        <translation>在其页面上显示</translation>
    </message>
    <message>
        <source>Shows the key, the profile or the files of a call on their page</source>
        <translation>在相应页面上显示调用所涉及的键、配置文件或文件</translation>
    </message>
</context>
<context>
    <name>SystemMetrics</name>
    <message>
        <source>0 (not provided)</source>
        <translation>0（未提供）</translation>
    </message>
</context>
<context>
    <name>TableTools</name>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy with header</source>
        <translation>连同表头复制</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>排序依据</translation>
    </message>
    <message>
        <source>Original order</source>
        <translation>原始顺序</translation>
    </message>
</context>
<context>
    <name>TakenName</name>
    <message>
        <source>%1 is there already.</source>
        <translation>%1 已存在。</translation>
    </message>
    <message>
        <source>%1 has a value &quot;%2&quot; already.</source>
        <translation>%1 已有值“%2”。</translation>
    </message>
</context>
<context>
    <name>TextLimits</name>
    <message>
        <source>The text is too long: %L1 bytes. At most %L2 are taken.</source>
        <translation>文本过长：共 %L1 字节，最多接受 %L2 字节。</translation>
    </message>
</context>
<context>
    <name>TraceDiffCommand</name>
    <message>
        <source>Prints the first difference alone.</source>
        <translation>只显示第一处差异。</translation>
    </message>
</context>
<context>
    <name>TraceDifference</name>
    <message>
        <source>handle of call %1</source>
        <translation>调用 %1 的句柄</translation>
    </message>
    <message>
        <source>handle of call %1 of the second recording</source>
        <translation>第二个记录文件中调用 %1 的句柄</translation>
    </message>
</context>
<context>
    <name>TraceDumpCommand</name>
    <message>
        <source>&quot;%1&quot; is no pattern: %2.</source>
        <translation>“%1”不是正则表达式：%2。</translation>
    </message>
    <message>
        <source>Call %1 is damaged.</source>
        <translation>调用 %1 已损坏。</translation>
    </message>
    <message>
        <source>Only calls whose line matches this regular expression.</source>
        <translation>只取其行与此正则表达式匹配的调用。</translation>
    </message>
    <message>
        <source>Goes on with the calls as they come, until the recording has ended or the command is interrupted.</source>
        <translation>继续显示新的调用，直到记录结束或命令被中断。</translation>
    </message>
</context>
<context>
    <name>TraceFault</name>
    <message>
        <source>Line %L1 is damaged.</source>
        <translation>第 %L1 行已损坏。</translation>
    </message>
    <message>
        <source>Line %L1 is too long.</source>
        <translation>第 %L1 行过长。</translation>
    </message>
    <message>
        <source>Line %L1 is cut off: the recording has ended within it.</source>
        <translation>第 %L1 行不完整：记录在此行中断。</translation>
    </message>
</context>
<context>
    <name>TraceFile</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>%1 is no file: a recording is read more than once.</source>
        <translation>%1 不是普通文件：记录文件需要多次读取。</translation>
    </message>
    <message>
        <source>%1 is no recording.</source>
        <translation>%1 不是记录文件。</translation>
    </message>
    <message>
        <source>%1 is a recording of a form that is not known here: %2.</source>
        <translation>%1 是此处未知格式的记录文件：%2。</translation>
    </message>
</context>
<context>
    <name>TraceLeaksCommand</name>
    <message>
        <source>A recording does not show whether an array was freed.</source>
        <translation>记录文件无法显示数组是否已释放。</translation>
    </message>
    <message>
        <source>The recording has no end: the program was still running, or was killed.</source>
        <translation>记录没有结尾：程序仍在运行，或已被终止。</translation>
    </message>
</context>
<context>
    <name>TraceMinimiseCommand</name>
    <message>
        <source>The number of the call that is to be kept.</source>
        <translation>要保留的调用的编号。</translation>
    </message>
    <message>
        <source>Which call? Name its number by --call.</source>
        <translation>哪个调用？请用 --call 指定其编号。</translation>
    </message>
    <message>
        <source>Kept: %L1 of %L2 calls, after %L3 replays.</source>
        <translation>经过 %L3 次重放，保留了 %L2 个调用中的 %L1 个。</translation>
    </message>
</context>
<context>
    <name>TracePage</name>
    <message>
        <source>What is shown of the recording</source>
        <translation>记录的显示内容</translation>
    </message>
    <message>
        <source>Call&amp;s</source>
        <translation>调用(&amp;S)</translation>
    </message>
    <message>
        <source>S&amp;tatistics</source>
        <translation>统计(&amp;T)</translation>
    </message>
    <message>
        <source>Lea&amp;ks</source>
        <translation>泄漏(&amp;K)</translation>
    </message>
    <message>
        <source>Asked for and a&amp;bsent</source>
        <translation>请求但不存在(&amp;B)</translation>
    </message>
    <message>
        <source>Type the path of a file first.</source>
        <translation>请先输入文件路径。</translation>
    </message>
    <message>
        <source>%1 is a bundle. Take the recording out of it first: &quot;quaysidectl trace trim --calls 1- BUNDLE FILE&quot; writes it into a file.</source>
        <translation>%1 是一个包。请先取出其中的记录：“quaysidectl trace trim --calls 1- BUNDLE FILE”会将其写入文件。</translation>
    </message>
    <message>
        <source>Reading the recording</source>
        <translation>正在读取记录文件</translation>
    </message>
    <message>
        <source>Stopped before the recording was read.</source>
        <translation>在读完记录文件之前已停止。</translation>
    </message>
    <message>
        <source>Calls: %L1.</source>
        <translation>调用：%L1 个。</translation>
    </message>
    <message>
        <source>The recording has no end: the program is still running, or was killed. What is added to it appears here.</source>
        <translation>记录没有结尾：程序仍在运行，或已被终止。新增的内容会显示在这里。</translation>
    </message>
    <message>
        <source>Lines that cannot be read: %L1. %2</source>
        <translation>无法读取的行：%L1。%2</translation>
    </message>
    <message>
        <source>%1 is no file.</source>
        <translation>%1 不是普通文件。</translation>
    </message>
</context>
<context>
    <name>TraceRecordCommand</name>
    <message>
        <source>%1 is not installed.</source>
        <translation>%1 未安装。</translation>
    </message>
    <message>
        <source>--text needs a number, not &quot;%1&quot;.</source>
        <translation>--text 需要一个数字，而不是“%1”。</translation>
    </message>
    <message>
        <source>There is no operation and no manager &quot;%1&quot;.</source>
        <translation>没有名为“%1”的操作或管理器。</translation>
    </message>
    <message>
        <source>Only data can be hidden, not &quot;%1&quot;.</source>
        <translation>只能隐藏 data，而不是“%1”。</translation>
    </message>
    <message>
        <source>Records into this file; usually into PROGRAM.trace in the working folder.</source>
        <translation>记录到此文件；通常为工作文件夹中的 PROGRAM.trace。</translation>
    </message>
    <message>
        <source>Prints the calls on the standard error as they come.</source>
        <translation>在标准错误输出上随时显示各个调用。</translation>
    </message>
    <message>
        <source>Prints only the calls that fail.</source>
        <translation>只显示失败的调用。</translation>
    </message>
    <message>
        <source>Records only these operations and managers; leaves those out that have &quot;!&quot; in front.</source>
        <translation>只记录这些操作和管理器；前面带“!”的除外。</translation>
    </message>
    <message>
        <source>Records the calls of the program itself too.</source>
        <translation>也记录程序自身的调用。</translation>
    </message>
    <message>
        <source>Records lengths in place of values; WHAT is &quot;data&quot;.</source>
        <translation>只记录值的长度而不记录值；WHAT 为“data”。</translation>
    </message>
    <message>
        <source>Records only so many characters of a text and bytes of data.</source>
        <translation>文本只记录这么多字符，数据只记录这么多字节。</translation>
    </message>
    <message>
        <source>Nothing is recorded: the program has not handed its services over.</source>
        <translation>未记录任何内容：程序没有移交其服务。</translation>
    </message>
</context>
<context>
    <name>TraceReplayCommand</name>
    <message>
        <source>Prints the first call that differs alone.</source>
        <translation>只输出第一个不同的调用。</translation>
    </message>
    <message>
        <source>Lists the calls that cannot be performed, and why.</source>
        <translation>列出无法执行的调用及其原因。</translation>
    </message>
</context>
<context>
    <name>TraceStatCommand</name>
    <message>
        <source>&quot;%1&quot; is no number.</source>
        <translation>“%1”不是数字。</translation>
    </message>
    <message>
        <source>Only what was asked for and was not there.</source>
        <translation>只列出请求过而不存在的内容。</translation>
    </message>
    <message>
        <source>How many keys, values, entries and files are printed; otherwise 20 of each, and all for 0.</source>
        <translation>显示多少个键、值、条目和文件；默认各 20 个，0 表示全部。</translation>
    </message>
</context>
<context>
    <name>TraceTestCommand</name>
    <message>
        <source>%1: there is no recording in this folder.</source>
        <translation>%1：此文件夹中没有记录。</translation>
    </message>
</context>
<context>
    <name>TraceTrimCommand</name>
    <message>
        <source>Which calls? Name them by --calls.</source>
        <translation>哪些调用？请用 --calls 指定。</translation>
    </message>
    <message>
        <source>Kept: %L1 of %L2 calls, %L3 of them because others need them.</source>
        <translation>已保留 %L2 个调用中的 %L1 个，其中 %L3 个是其他调用所需的。</translation>
    </message>
</context>
<context>
    <name>TypedKey</name>
    <message>
        <source>%1 of %2 bytes</source>
        <translation>%1 / %2 字节</translation>
    </message>
    <message>
        <source>The key is not hexadecimal: pairs of 0-9 and a-f are needed.</source>
        <translation>密钥不是十六进制：需要成对的 0-9 和 a-f。</translation>
    </message>
    <message>
        <source>The IV is not hexadecimal: pairs of 0-9 and a-f are needed.</source>
        <translation>初始向量不是十六进制：需要成对的 0-9 和 a-f。</translation>
    </message>
    <message>
        <source>The key is too short: the cipher takes %1 bytes.</source>
        <translation>密钥过短：该密码算法需要 %1 字节。</translation>
    </message>
    <message>
        <source>The IV is too short: the cipher takes %1 bytes.</source>
        <translation>初始向量过短：该密码算法需要 %1 字节。</translation>
    </message>
    <message>
        <source>%L1 bytes: only the first %2 are used</source>
        <translation>%L1 字节：仅使用前 %2 字节</translation>
    </message>
    <message>
        <source>Only the first %1 bytes of the key are used.</source>
        <translation>密钥仅使用前 %1 字节。</translation>
    </message>
    <message>
        <source>Only the first %1 bytes of the IV are used.</source>
        <translation>初始向量仅使用前 %1 字节。</translation>
    </message>
</context>
<context>
    <name>UnkeptName</name>
    <message>
        <source>The first character of the name, the invisible U+FEFF, is left out by the registry.</source>
        <translation>名称的第一个字符是不可见的 U+FEFF，注册表会将其略去。</translation>
    </message>
    <message>
        <source>A value without a name is gone after a restart.</source>
        <translation>没有名称的值在重新启动后将不复存在。</translation>
    </message>
    <message>
        <source>After a restart the key &quot;%1&quot; is called &quot;%2&quot;: the store cannot tell the two apart.</source>
        <translation>重新启动后，项“%1”将变为“%2”：存储无法区分二者。</translation>
    </message>
</context>
<context>
    <name>ValueChange</name>
    <message>
        <source>%1 becomes %2.</source>
        <translation>%1 将变为 %2。</translation>
    </message>
    <message>
        <source>The text is kept up to its first NUL character.</source>
        <translation>文本只保留到第一个 NUL 字符为止。</translation>
    </message>
    <message>
        <source>Some of the text&apos;s characters will be read as others.</source>
        <translation>文本中的部分字符将读作其他字符。</translation>
    </message>
    <message>
        <source>%1 will be read as 0: it does not fit a signed number.</source>
        <translation>%1 将读作 0：超出有符号数的范围。</translation>
    </message>
    <message>
        <source>The number does not have %1 bytes: its first byte alone is kept.</source>
        <translation>数值不是 %1 字节：只保留其第一个字节。</translation>
    </message>
    <message>
        <source>Only the lowest byte of a QWORD is kept: %1 will be read as %2.</source>
        <translation>QWORD 只保留最低字节：%1 将读作 %2。</translation>
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
    <message>
        <source>Line ends become LF.</source>
        <translation>换行符将变为 LF。</translation>
    </message>
    <message>
        <source>Se&amp;veral lines</source>
        <translation>多行(&amp;V)</translation>
    </message>
    <message>
        <source>Stored text (raw)</source>
        <translation>存储文本（原始）</translation>
    </message>
    <message>
        <source>Stored:</source>
        <translation>已存储：</translation>
    </message>
    <message>
        <source>OK leaves it as it is.</source>
        <translation>按“确定”后保持不变。</translation>
    </message>
    <message>
        <source>It is not replaced by what is typed.</source>
        <translation>输入的内容不会替换它。</translation>
    </message>
    <message>
        <source>OK replaces it with: %1</source>
        <translation>按“确定”后替换为：%1</translation>
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
    <message>
        <source>%1 has a value &quot;%2&quot; already.</source>
        <translation>%1 中已有值“%2”。</translation>
    </message>
</context>
<context>
    <name>ValueTable</name>
    <message>
        <source>Values</source>
        <translation>值</translation>
    </message>
    <message>
        <source>The registry is empty. Create a key with New, or import a registry file.</source>
        <translation>注册表为空。请用“新建”创建项，或导入注册表文件。</translation>
    </message>
    <message>
        <source>This key holds no values. Choose a key below it, or create a value with New.</source>
        <translation>此项中没有值。请选择其下的项，或用“新建”创建值。</translation>
    </message>
</context>
<context>
    <name>WindowSearch</name>
    <message>
        <source>A window was found.</source>
        <translation>已找到窗口。</translation>
    </message>
    <message>
        <source>No window was found. Names must match exactly, upper and lower case included.</source>
        <translation>未找到窗口。名称必须完全一致，区分大小写。</translation>
    </message>
</context>
<context>
    <name>WindowsPath</name>
    <message>
        <source>The services know no drives, and a backslash is a character of a name to them: only / separates folders.</source>
        <translation>服务没有盘符的概念，反斜杠对它们只是名称中的一个字符：只有 / 分隔文件夹。</translation>
    </message>
</context>
</TS>
