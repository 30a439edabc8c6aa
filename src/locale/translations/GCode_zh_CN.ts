<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>QObject</name>
    <message>
        <source>Check for Updates</source>
        <translation>检查更新</translation>
    </message>
    <message>
        <source>Quillon Release Notes</source>
        <translation>Quillon 发行说明</translation>
    </message>
    <message>
        <source>Add-Ins</source>
        <translation>附加模块</translation>
    </message>
    <message>
        <source>Export table entity to .xlsx, .xls, .csv file</source>
        <translation>将表格实体导出为 .xlsx、.xls、.csv 文件</translation>
    </message>
    <message>
        <source>Opens the drawings in Viewcast</source>
        <translation>在 Viewcast 中打开图纸</translation>
    </message>
    <message>
        <source>Can not publish this document to Viewcast</source>
        <translation>无法将此文档发布到 Viewcast</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系统</translation>
    </message>
    <message>
        <source>German</source>
        <translation>德语</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英语</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>土耳其语</translation>
    </message>
    <message>
        <source>Hungarian</source>
        <translation>匈牙利语</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>波兰语</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日语</translation>
    </message>
    <message>
        <source>French</source>
        <translation>法语</translation>
    </message>
    <message>
        <source>QObject::traditional Chinese</source>
        <translation>繁体中文</translation>
    </message>
    <message>
        <source>Simplified Chinese</source>
        <translation>简体中文</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>意大利语</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>西班牙语</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>希腊语</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>韩语</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>越南语</translation>
    </message>
    <message>
        <source>Catalan</source>
        <translation>加泰罗尼亚语</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>泰语</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>荷兰语</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>俄语</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>葡萄牙语</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation>捷克语</translation>
    </message>
</context>
</TS>
