<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name></name>
    <!-- Texts that would be wrong on Linux: the source is the wording of the other tables -->
    <message>
        <source>GPU, Sensors and Battery only appear on Macs that report them.</source>
        <translation>仅在电脑提供相应数据时，才会显示 GPU、传感器和电池。</translation>
    </message>
    <message>
        <source>Temperatures are not available on this Mac.</source>
        <translation>此电脑无法提供温度数据。</translation>
    </message>
    <message><source>Only %@ free on the startup disk.</source><translation>系统磁盘仅剩 %@ 可用空间。</translation></message>
    <message>
        <source>Notifications are turned off for Vantrix. Enable them in System Settings → Notifications.</source>
        <translation>此桌面上没有通知服务应答，因此无法显示提醒。任何通知守护程序均可。</translation>
    </message>
    <message>
        <source>Menu Bar</source>
        <translation>面板</translation>
    </message>
    <message>
        <source>Bars, rings and the menu bar turn orange and red above these values.</source>
        <translation>超过这些值时，进度条、圆环和面板会变为橙色和红色。</translation>
    </message>
    <message>
        <source>Only the checked modules appear in the menu bar, in this order. With none selected, Vantrix shows just its icon.</source>
        <translation>面板中仅按此顺序显示已勾选的模块。如果一个都未勾选，Vantrix 只显示自己的图标。</translation>
    </message>
</context>
</TS>
