<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>QNOmniplaneView</name>
    <message>
        <source>Omniplane</source>
        <translation>Omniplane</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <translation>注销</translation>
    </message>
    <message>
        <source>Upload to Omniplane</source>
        <translation>上传到 Omniplane</translation>
    </message>
    <message>
        <source>Synchronize Drawings</source>
        <translation>同步图纸</translation>
    </message>
    <message>
        <source>The connection to Omniplane failed.</source>
        <translation>连接 Omniplane 失败。</translation>
    </message>
</context>
</TS>
