<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
<context>
    <name></name>
    <!-- What the system says when it asks for permission -->
    <message>
        <source>Vantrix shows the battery levels of your Bluetooth accessories.</source>
        <translation>Vantrix mostra il livello della batteria dei tuoi accessori Bluetooth.</translation>
    </message>
    <message>
        <source>Vantrix shows the name of your Wi-Fi network, which macOS treats as part of your location.</source>
        <translation>Vantrix mostra il nome della tua rete Wi-Fi, che macOS considera parte della tua posizione.</translation>
    </message>
</context>
</TS>
