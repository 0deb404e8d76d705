<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name></name>
    <!-- Texts that would be wrong on Linux: the source is the wording of the other tables -->
    <message>
        <source>GPU, Sensors and Battery only appear on Macs that report them.</source>
        <translation>GPU, Sensoren und Akku erscheinen nur auf Rechnern, die diese Werte liefern.</translation>
    </message>
    <message>
        <source>Temperatures are not available on this Mac.</source>
        <translation>Auf diesem Rechner sind keine Temperaturen verfügbar.</translation>
    </message>
    <message>
        <source>Only %@ free on the startup disk.</source>
        <translation>Nur noch %@ auf dem Systemlaufwerk frei.</translation>
    </message>
    <message>
        <source>Notifications are turned off for Vantrix. Enable them in System Settings → Notifications.</source>
        <translation>Auf diesem Desktop antwortet kein Benachrichtigungsdienst, daher können keine Warnungen angezeigt werden. Jeder Benachrichtigungs-Daemon genügt.</translation>
    </message>
    <message>
        <source>Menu Bar</source>
        <translation>Leiste</translation>
    </message>
    <message>
        <source>Bars, rings and the menu bar turn orange and red above these values.</source>
        <translation>Über diesen Werten färben sich Balken, Ringe und Leiste orange und rot.</translation>
    </message>
    <message>
        <source>Only the checked modules appear in the menu bar, in this order. With none selected, Vantrix shows just its icon.</source>
        <translation>Nur die ausgewählten Module erscheinen in der Leiste, in dieser Reihenfolge. Ist keines ausgewählt, zeigt Vantrix nur sein Symbol.</translation>
    </message>
</context>
</TS>
