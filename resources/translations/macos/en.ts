<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name></name>
    <!-- What the system says when it asks for permission -->
    <message>
        <source>Vantrix shows the battery levels of your Bluetooth accessories.</source>
        <translation>Vantrix shows the battery levels of your Bluetooth accessories.</translation>
    </message>
    <message>
        <source>Vantrix shows the name of your Wi-Fi network, which macOS treats as part of your location.</source>
        <translation>Vantrix shows the name of your Wi-Fi network, which macOS treats as part of your location.</translation>
    </message>
</context>
</TS>
