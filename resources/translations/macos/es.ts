<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name></name>
    <!-- What the system says when it asks for permission -->
    <message>
        <source>Vantrix shows the battery levels of your Bluetooth accessories.</source>
        <translation>Vantrix muestra el nivel de batería de tus accesorios Bluetooth.</translation>
    </message>
    <message>
        <source>Vantrix shows the name of your Wi-Fi network, which macOS treats as part of your location.</source>
        <translation>Vantrix muestra el nombre de tu red Wi-Fi, que macOS considera parte de tu ubicación.</translation>
    </message>
</context>
</TS>
