<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>RecentDocumentBrowser</name>
    <message>
        <source>Recent Documents</source>
        <translation>最近使用的文件</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開啟</translation>
    </message>
    <message>
        <source>Pin to List</source>
        <translation>釘選到清單</translation>
    </message>
    <message>
        <source>Remove from List</source>
        <translation>從清單中移除</translation>
    </message>
    <message>
        <source>Clear Unpinned Documents</source>
        <translation>清除未釘選的文件</translation>
    </message>
    <message>
        <source>Last modified: %1</source>
        <translation>上次修改時間：%1</translation>
    </message>
</context>
</TS>
