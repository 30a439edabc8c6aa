<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>QObject</name>
    <message>
        <source>Check for Updates</source>
        <translation>檢查更新</translation>
    </message>
    <message>
        <source>Quillon Release Notes</source>
        <translation>Quillon 版本資訊</translation>
    </message>
    <message>
        <source>Add-Ins</source>
        <translation>附加模組</translation>
    </message>
    <message>
        <source>Export table entity to .xlsx, .xls, .csv file</source>
        <translation>將表格實體匯出為 .xlsx、.xls、.csv 檔案</translation>
    </message>
    <message>
        <source>Opens the drawings in Viewcast</source>
        <translation>在 Viewcast 中開啟圖面</translation>
    </message>
    <message>
        <source>Can not publish this document to Viewcast</source>
        <translation>無法將此文件發佈到 Viewcast</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系統</translation>
    </message>
    <message>
        <source>German</source>
        <translation>德語</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英語</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>土耳其語</translation>
    </message>
    <message>
        <source>Hungarian</source>
        <translation>匈牙利語</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>波蘭語</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日語</translation>
    </message>
    <message>
        <source>French</source>
        <translation>法語</translation>
    </message>
    <message>
        <source>QObject::traditional Chinese</source>
        <translation>繁體中文</translation>
    </message>
    <message>
        <source>Simplified Chinese</source>
        <translation>簡體中文</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>義大利語</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>西班牙語</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>希臘語</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>韓語</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>越南語</translation>
    </message>
    <message>
        <source>Catalan</source>
        <translation>加泰隆尼亞語</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>泰語</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>荷蘭語</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>俄語</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>葡萄牙語</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation>捷克語</translation>
    </message>
</context>
</TS>
