<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name></name>
    <!-- What the system says when it asks for permission -->
    <message>
        <source>Vantrix shows the battery levels of your Bluetooth accessories.</source>
        <translation>VantrixはBluetoothアクセサリのバッテリー残量を表示します。</translation>
    </message>
    <message>
        <source>Vantrix shows the name of your Wi-Fi network, which macOS treats as part of your location.</source>
        <translation>VantrixはWi-Fiネットワークの名前を表示します。macOSはこの名前を位置情報の一部として扱います。</translation>
    </message>
</context>
</TS>
