<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>XmlTodxf</name>
    <message>
        <source>Forgeport</source>
        <translation>Forgeport</translation>
    </message>
    <message>
        <source>Import XML</source>
        <translation>XML importieren</translation>
    </message>
    <message>
        <source>Converts an XML file into a drawing</source>
        <translation>Wandelt eine XML-Datei in eine Zeichnung um</translation>
    </message>
    <message>
        <source>The XML file could not be read.</source>
        <translation>Die XML-Datei konnte nicht gelesen werden.</translation>
    </message>
</context>
</TS>
