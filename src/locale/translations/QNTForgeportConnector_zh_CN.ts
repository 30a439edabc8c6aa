<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>XmlTodxf</name>
    <message>
        <source>Forgeport</source>
        <translation>Forgeport</translation>
    </message>
    <message>
        <source>Import XML</source>
        <translation>导入 XML</translation>
    </message>
    <message>
        <source>Converts an XML file into a drawing</source>
        <translation>将 XML 文件转换为图纸</translation>
    </message>
    <message>
        <source>The XML file could not be read.</source>
        <translation>无法读取 XML 文件。</translation>
    </message>
</context>
</TS>
