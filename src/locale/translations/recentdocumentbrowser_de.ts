<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>RecentDocumentBrowser</name>
    <message>
        <source>Recent Documents</source>
        <translation>Zuletzt verwendete Dokumente</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Pin to List</source>
        <translation>An Liste anheften</translation>
    </message>
    <message>
        <source>Remove from List</source>
        <translation>Aus Liste entfernen</translation>
    </message>
    <message>
        <source>Clear Unpinned Documents</source>
        <translation>Nicht angeheftete Dokumente entfernen</translation>
    </message>
    <message>
        <source>Last modified: %1</source>
        <translation>Zuletzt geändert: %1</translation>
    </message>
</context>
</TS>
