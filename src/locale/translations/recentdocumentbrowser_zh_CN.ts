<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>RecentDocumentBrowser</name>
    <message>
        <source>Recent Documents</source>
        <translation>最近使用的文档</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Pin to List</source>
        <translation>固定到列表</translation>
    </message>
    <message>
        <source>Remove from List</source>
        <translation>从列表中删除</translation>
    </message>
    <message>
        <source>Clear Unpinned Documents</source>
        <translation>清除未固定的文档</translation>
    </message>
    <message>
        <source>Last modified: %1</source>
        <translation>上次修改时间：%1</translation>
    </message>
</context>
</TS>
