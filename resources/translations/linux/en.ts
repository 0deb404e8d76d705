<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name></name>
    <!-- Texts that would be wrong on Linux: the source is the wording of the other tables -->
    <message>
        <source>GPU, Sensors and Battery only appear on Macs that report them.</source>
        <translation>GPU, Sensors and Battery only appear on computers that report them.</translation>
    </message>
    <message>
        <source>Temperatures are not available on this Mac.</source>
        <translation>Temperatures are not available on this computer.</translation>
    </message>
    <message>
        <source>Only %@ free on the startup disk.</source>
        <translation>Only %@ free on the system disk.</translation>
    </message>
    <message>
        <source>Notifications are turned off for Vantrix. Enable them in System Settings → Notifications.</source>
        <translation>No notification service answers on this desktop, so alerts cannot be shown. Any notification daemon will do.</translation>
    </message>
    <message>
        <source>Menu Bar</source>
        <translation>Panel</translation>
    </message>
    <message>
        <source>Bars, rings and the menu bar turn orange and red above these values.</source>
        <translation>Bars, rings and the panel turn orange and red above these values.</translation>
    </message>
    <message>
        <source>Only the checked modules appear in the menu bar, in this order. With none selected, Vantrix shows just its icon.</source>
        <translation>Only the checked modules appear in the panel, in this order. With none selected, Vantrix shows just its icon.</translation>
    </message>
</context>
</TS>
