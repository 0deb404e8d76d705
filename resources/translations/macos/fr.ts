<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name></name>
    <!-- What the system says when it asks for permission -->
    <message>
        <source>Vantrix shows the battery levels of your Bluetooth accessories.</source>
        <translation>Vantrix affiche le niveau de batterie de vos accessoires Bluetooth.</translation>
    </message>
    <message>
        <source>Vantrix shows the name of your Wi-Fi network, which macOS treats as part of your location.</source>
        <translation>Vantrix affiche le nom de votre réseau Wi-Fi, que macOS considère comme une partie de votre position.</translation>
    </message>
</context>
</TS>
