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
        <translation>Vantrix 的通知已关闭。请在桌面的通知设置中打开。</translation>
    </message>
</context>
</TS>
