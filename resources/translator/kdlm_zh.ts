<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>MainWindow</name>
    <message>
        <source>Quayside</source>
        <translation>Quayside</translation>
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
        <source>English</source>
        <comment>name of the interface&apos;s language</comment>
        <translation>简体中文</translation>
    </message>
</context>
</TS>
