<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name></name>
    <!-- Texts that would be wrong on Linux: the source is the wording of the other tables -->
    <message>
        <source>GPU, Sensors and Battery only appear on Macs that report them.</source>
        <translation>GPU、センサー、バッテリーは、情報を取得できるコンピューターでのみ表示されます。</translation>
    </message>
    <message>
        <source>Temperatures are not available on this Mac.</source>
        <translation>このコンピューターでは温度を取得できません。</translation>
    </message>
    <message>
        <source>Only %@ free on the startup disk.</source>
        <translation>システムディスクの空き容量は残り%@です。</translation>
    </message>
    <message>
        <source>Notifications are turned off for Vantrix. Enable them in System Settings → Notifications.</source>
        <translation>このデスクトップでは通知サービスが応答しないため、通知を表示できません。通知デーモンはどれでも使えます。</translation>
    </message>
    <message>
        <source>Menu Bar</source>
        <translation>パネル</translation>
    </message>
    <message>
        <source>Bars, rings and the menu bar turn orange and red above these values.</source>
        <translation>この値を超えると、バー、リング、パネルがオレンジや赤に変わります。</translation>
    </message>
    <message>
        <source>Only the checked modules appear in the menu bar, in this order. With none selected, Vantrix shows just its icon.</source>
        <translation>選択したモジュールだけが、この順序でパネルに表示されます。何も選択しない場合は、Vantrixのアイコンだけが表示されます。</translation>
    </message>
</context>
</TS>
