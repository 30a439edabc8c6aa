<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>QNOmniplaneView</name>
    <message>
        <source>Omniplane</source>
        <translation>Omniplane</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>登入</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <translation>登出</translation>
    </message>
    <message>
        <source>Upload to Omniplane</source>
        <translation>上傳到 Omniplane</translation>
    </message>
    <message>
        <source>Synchronize Drawings</source>
        <translation>同步圖面</translation>
    </message>
    <message>
        <source>The connection to Omniplane failed.</source>
        <translation>連線到 Omniplane 失敗。</translation>
    </message>
</context>
</TS>
