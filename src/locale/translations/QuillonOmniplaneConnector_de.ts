<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>QNOmniplaneView</name>
    <message>
        <source>Omniplane</source>
        <translation>Omniplane</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <translation>Abmelden</translation>
    </message>
    <message>
        <source>Upload to Omniplane</source>
        <translation>Auf Omniplane hochladen</translation>
    </message>
    <message>
        <source>Synchronize Drawings</source>
        <translation>Zeichnungen synchronisieren</translation>
    </message>
    <message>
        <source>The connection to Omniplane failed.</source>
        <translation>Die Verbindung zu Omniplane ist fehlgeschlagen.</translation>
    </message>
</context>
</TS>
