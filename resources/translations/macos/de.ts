<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name></name>
    <!-- What the system says when it asks for permission -->
    <message>
        <source>Vantrix shows the battery levels of your Bluetooth accessories.</source>
        <translation>Vantrix zeigt die Akkustände deines Bluetooth-Zubehörs an.</translation>
    </message>
    <message>
        <source>Vantrix shows the name of your Wi-Fi network, which macOS treats as part of your location.</source>
        <translation>Vantrix zeigt den Namen deines WLANs an, den macOS als Teil deines Standorts behandelt.</translation>
    </message>
</context>
</TS>
