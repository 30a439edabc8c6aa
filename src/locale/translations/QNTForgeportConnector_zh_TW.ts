<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>XmlTodxf</name>
    <message>
        <source>Forgeport</source>
        <translation>Forgeport</translation>
    </message>
    <message>
        <source>Import XML</source>
        <translation>匯入 XML</translation>
    </message>
    <message>
        <source>Converts an XML file into a drawing</source>
        <translation>將 XML 檔案轉換為圖面</translation>
    </message>
    <message>
        <source>The XML file could not be read.</source>
        <translation>無法讀取 XML 檔案。</translation>
    </message>
</context>
</TS>
