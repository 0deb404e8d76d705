<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name></name>
    <!-- The menu -->
    <message><source>Vantrix</source><translation>Vantrix</translation></message>
    <message><source>Open Vantrix</source><translation>Vantrix öffnen</translation></message>
    <message><source>Settings…</source><translation>Einstellungen…</translation></message>
    <message><source>Quit Vantrix</source><translation>Vantrix beenden</translation></message>
    <message><source>Vantrix menu</source><translation>Vantrix-Menü</translation></message>
    <message><source>Settings and quit</source><translation>Einstellungen und Beenden</translation></message>
    <!-- Readings, layouts and tabs -->
    <message><source>CPU</source><translation>CPU</translation></message>
    <message><source>Memory</source><translation>Speicher</translation></message>
    <message><source>Network</source><translation>Netzwerk</translation></message>
    <message><source>Disk</source><translation>Laufwerk</translation></message>
    <message><source>GPU</source><translation>GPU</translation></message>
    <message><source>CPU temperature</source><translation>CPU-Temperatur</translation></message>
    <message><source>Battery</source><translation>Akku</translation></message>
    <message><source>Sensors</source><translation>Sensoren</translation></message>
    <message><source>Accessories</source><translation>Zubehör</translation></message>
    <message><source>Bluetooth accessories</source><translation>Bluetooth-Zubehör</translation></message>
    <message><source>Inline</source><translation>Nebeneinander</translation></message>
    <message><source>Stacked</source><translation>Gestapelt</translation></message>
    <message><source>With graph</source><translation>Mit Verlauf</translation></message>
    <message><source>General</source><translation>Allgemein</translation></message>
    <message><source>Menu Bar</source><translation>Menüleiste</translation></message>
    <message><source>Popover</source><translation>Übersicht</translation></message>
    <message><source>Alerts</source><translation>Warnungen</translation></message>
    <!-- Captions beside the values of the status item: as short as CPU and RAM -->
    <message><source>DISK</source><translation>DISK</translation></message>
    <message><source>CHG</source><translation>LAD</translation></message>
    <message><source>BAT</source><translation>AKKU</translation></message>
    <!-- Cards -->
    <message>
        <source>No cards selected. Choose what to show in Settings → Popover.</source>
        <translation>Keine Karten ausgewählt. Wähle unter „Einstellungen → Übersicht“, was angezeigt wird.</translation>
    </message>
    <message><source>User</source><translation>Benutzer</translation></message>
    <message><source>System</source><translation>System</translation></message>
    <message><source>Idle</source><translation>Leerlauf</translation></message>
    <message numerus="yes">
        <source>%lld cores</source>
        <translation><numerusform>%lld Kern</numerusform><numerusform>%lld Kerne</numerusform></translation>
    </message>
    <message><source>%lld cores (%lldP + %lldE)</source><translation>%lld Kerne (%lldP + %lldE)</translation></message>
    <message><source>App</source><translation>Apps</translation></message>
    <message><source>Wired</source><translation>Reserviert</translation></message>
    <message><source>Compressed</source><translation>Komprimiert</translation></message>
    <message><source>Swap used</source><translation>Swap belegt</translation></message>
    <message><source>Pressure: normal</source><translation>Auslastung: normal</translation></message>
    <message><source>Pressure: warning</source><translation>Auslastung: erhöht</translation></message>
    <message><source>Pressure: critical</source><translation>Auslastung: kritisch</translation></message>
    <message><source>Kernel</source><translation>Kernel</translation></message>
    <message><source>Programs by CPU use</source><translation>Programme nach CPU-Nutzung</translation></message>
    <message><source>Programs by memory use</source><translation>Programme nach Speichernutzung</translation></message>
    <message><source>of %@</source><translation>von %@</translation></message>
    <message><source>%@ free</source><translation>%@ frei</translation></message>
    <message><source>%@ free of %@</source><translation>%@ von %@ frei</translation></message>
    <message><source>Download</source><translation>Download</translation></message>
    <message><source>Upload</source><translation>Upload</translation></message>
    <message><source>Network name unavailable</source><translation>Netzwerkname nicht verfügbar</translation></message>
    <message>
        <source>Allow location access to show the network name</source>
        <translation>Ortungszugriff erlauben, damit der Netzwerkname erscheint</translation>
    </message>
    <message><source>Signal</source><translation>Signal</translation></message>
    <message><source>Signal-to-noise</source><translation>Signal-Rausch-Abstand</translation></message>
    <message><source>Link speed</source><translation>Verbindungsrate</translation></message>
    <message><source>Interface</source><translation>Schnittstelle</translation></message>
    <message><source>IP address</source><translation>IP-Adresse</translation></message>
    <message><source>%@ is not available</source><translation>%@ ist nicht verfügbar</translation></message>
    <message><source>Excellent</source><translation>Sehr gut</translation></message>
    <message><source>Good</source><translation>Gut</translation></message>
    <message><source>Fair</source><translation>Mittel</translation></message>
    <message><source>Weak</source><translation>Schwach</translation></message>
    <message><source>Read</source><translation>Lesen</translation></message>
    <message><source>Write</source><translation>Schreiben</translation></message>
    <message><source>SoC</source><translation>SoC</translation></message>
    <message><source>SSD</source><translation>SSD</translation></message>
    <message><source>max %@</source><translation>max. %@</translation></message>
    <message><source>System power</source><translation>Systemverbrauch</translation></message>
    <message><source>Adapter input</source><translation>Netzteileingang</translation></message>
    <message><source>CPU power</source><translation>CPU-Verbrauch</translation></message>
    <message><source>GPU power</source><translation>GPU-Verbrauch</translation></message>
    <message><source>Neural Engine</source><translation>Neural Engine</translation></message>
    <message><source>Memory (DRAM)</source><translation>Speicher (DRAM)</translation></message>
    <message><source>Fan %lld</source><translation>Lüfter %lld</translation></message>
    <message><source>All sensors (%lld)</source><translation>Alle Sensoren (%lld)</translation></message>
    <message>
        <source>Temperatures are not available on this Mac.</source>
        <translation>Auf diesem Mac sind keine Temperaturen verfügbar.</translation>
    </message>
    <message><source>Charging</source><translation>Wird geladen</translation></message>
    <message><source>Plugged in</source><translation>Am Netzteil</translation></message>
    <message><source>On battery</source><translation>Akkubetrieb</translation></message>
    <message><source>to full: %@</source><translation>voll in %@</translation></message>
    <message><source>left: %@</source><translation>verbleibend: %@</translation></message>
    <message><source>Maximum capacity</source><translation>Maximale Kapazität</translation></message>
    <message><source>Cycle count</source><translation>Ladezyklen</translation></message>
    <message><source>Temperature</source><translation>Temperatur</translation></message>
    <message><source>Charging power</source><translation>Ladeleistung</translation></message>
    <message><source>Discharge power</source><translation>Entladeleistung</translation></message>
    <message numerus="yes">
        <source>%lld connected</source>
        <translation><numerusform>%lld verbunden</numerusform><numerusform>%lld verbunden</numerusform></translation>
    </message>
    <!-- Values with their units -->
    <message numerus="yes">
        <source>%lld seconds</source>
        <translation><numerusform>%lld Sekunde</numerusform><numerusform>%lld Sekunden</numerusform></translation>
    </message>
    <message><source>%lldh %lldm</source><translation>%lld Std. %lld Min.</translation></message>
    <message><source>%lldm</source><translation>%lld Min.</translation></message>
    <message numerus="yes">
        <source>%lld bytes</source>
        <translation><numerusform>%lld Byte</numerusform><numerusform>%lld Byte</numerusform></translation>
    </message>
    <message><source>%@ KB</source><translation>%@ KB</translation></message>
    <message><source>%@ MB</source><translation>%@ MB</translation></message>
    <message><source>%@ GB</source><translation>%@ GB</translation></message>
    <message><source>%@ TB</source><translation>%@ TB</translation></message>
    <message><source>%@ PB</source><translation>%@ PB</translation></message>
    <message><source>%@ EB</source><translation>%@ EB</translation></message>
    <message><source>%@ KiB</source><translation>%@ KiB</translation></message>
    <message><source>%@ MiB</source><translation>%@ MiB</translation></message>
    <message><source>%@ GiB</source><translation>%@ GiB</translation></message>
    <message><source>%@ TiB</source><translation>%@ TiB</translation></message>
    <message><source>%@ kb</source><translation>%@ kbit</translation></message>
    <message><source>%@ Mb</source><translation>%@ Mbit</translation></message>
    <message><source>%@ Gb</source><translation>%@ Gbit</translation></message>
    <message><source>%@ Tb</source><translation>%@ Tbit</translation></message>
    <message numerus="yes">
        <source>%lld bits</source>
        <translation><numerusform>%lld Bit</numerusform><numerusform>%lld Bit</numerusform></translation>
    </message>
    <message><source>%@/s</source><translation>%@/s</translation></message>
    <message><source>%lld dBm · %@</source><translation>%lld dBm · %@</translation></message>
    <message><source>%@ dB</source><translation>%@ dB</translation></message>
    <message><source>%@ Mbps</source><translation>%@ Mbit/s</translation></message>
    <message><source>%@ rpm</source><translation>%@ U/min</translation></message>
    <message><source>%@ W</source><translation>%@ W</translation></message>
    <!-- Settings -->
    <message><source>Vantrix Settings</source><translation>Vantrix-Einstellungen</translation></message>
    <message><source>Launch at login</source><translation>Beim Anmelden starten</translation></message>
    <message><source>Update every</source><translation>Aktualisierungsintervall</translation></message>
    <message><source>Color thresholds</source><translation>Farbschwellen</translation></message>
    <message><source>Warning</source><translation>Warnung</translation></message>
    <message><source>Critical</source><translation>Kritisch</translation></message>
    <message><source>Warning threshold</source><translation>Warnschwelle</translation></message>
    <message><source>Critical threshold</source><translation>Kritische Schwelle</translation></message>
    <message>
        <source>Bars, rings and the menu bar turn orange and red above these values.</source>
        <translation>Über diesen Werten färben sich Balken, Ringe und die Menüleiste orange und rot.</translation>
    </message>
    <message>
        <source>Nothing turns orange: the warning threshold is not below the critical one.</source>
        <translation>Nichts wird orange: Die Warnschwelle liegt nicht unter der kritischen Schwelle.</translation>
    </message>
    <message><source>Units</source><translation>Einheiten</translation></message>
    <message><source>°C</source><translation>°C</translation></message>
    <message><source>°F</source><translation>°F</translation></message>
    <message><source>Bytes</source><translation>Byte</translation></message>
    <message><source>Bits</source><translation>Bit</translation></message>
    <message><source>GB</source><translation>GB</translation></message>
    <message><source>GiB</source><translation>GiB</translation></message>
    <message>
        <source>Memory is counted in steps of 1024 under either name.</source>
        <translation>Speicher wird unter beiden Namen in Schritten von 1024 gezählt.</translation>
    </message>
    <message><source>Preview</source><translation>Vorschau</translation></message>
    <message>
        <source>Select at least one module</source>
        <translation>Wähle mindestens ein Modul aus</translation>
    </message>
    <message><source>Style</source><translation>Stil</translation></message>
    <message><source>Layout</source><translation>Anordnung</translation></message>
    <message>
        <source>Color values above the thresholds</source>
        <translation>Werte über den Schwellen einfärben</translation>
    </message>
    <message><source>Modules</source><translation>Module</translation></message>
    <message>
        <source>Only the checked modules appear in the menu bar, in this order. With none selected, Vantrix shows just its icon.</source>
        <translation>Nur die ausgewählten Module erscheinen in der Menüleiste, in dieser Reihenfolge. Ist keines ausgewählt, zeigt Vantrix nur sein Symbol.</translation>
    </message>
    <message><source>Move %@ up</source><translation>%@ nach oben bewegen</translation></message>
    <message><source>Move %@ down</source><translation>%@ nach unten bewegen</translation></message>
    <message><source>What modules show</source><translation>Inhalt der Module</translation></message>
    <message><source>Space in use</source><translation>Belegter Platz</translation></message>
    <message><source>Read and write</source><translation>Lesen und Schreiben</translation></message>
    <message><source>Mean</source><translation>Mittel</translation></message>
    <message><source>Hottest</source><translation>Höchste</translation></message>
    <message><source>Network interface</source><translation>Netzwerkschnittstelle</translation></message>
    <message><source>All hardware ports</source><translation>Alle Hardware-Anschlüsse</translation></message>
    <message><source>Disk volume</source><translation>Volume</translation></message>
    <message><source>System volume</source><translation>Systemvolume</translation></message>
    <message>
        <source>Interface and volume count in the popover and for alerts as well.</source>
        <translation>Schnittstelle und Volume gelten auch für die Übersicht und die Warnungen.</translation>
    </message>
    <message><source>Cards</source><translation>Karten</translation></message>
    <message>
        <source>GPU, Sensors and Battery only appear on Macs that report them.</source>
        <translation>GPU, Sensoren und Akku erscheinen nur auf Macs, die diese Werte liefern.</translation>
    </message>
    <message><source>Send notifications</source><translation>Benachrichtigungen senden</translation></message>
    <message>
        <source>Each alert is sent at most once every 15 minutes.</source>
        <translation>Jede Warnung wird höchstens einmal alle 15 Minuten gesendet.</translation>
    </message>
    <message>
        <source>The CPU alert uses the critical threshold from General.</source>
        <translation>Die CPU-Warnung verwendet die kritische Schwelle aus „Allgemein“.</translation>
    </message>
    <message><source>Name the programs responsible</source><translation>Verursachende Programme nennen</translation></message>
    <message><source>Notify me about</source><translation>Benachrichtigen bei</translation></message>
    <message><source>CPU above %@</source><translation>CPU über %@</translation></message>
    <message><source>Memory under pressure</source><translation>Speicher stark ausgelastet</translation></message>
    <message><source>Disk almost full</source><translation>Laufwerk fast voll</translation></message>
    <message>
        <source>Battery at %@ or less, not charging</source>
        <translation>Akku bei %@ oder weniger, lädt nicht</translation>
    </message>
    <message><source>CPU temperature above 95 °C</source><translation>CPU-Temperatur über 95 °C</translation></message>
    <message><source>CPU temperature above %@</source><translation>CPU-Temperatur über %@</translation></message>
    <message><source>Conditions</source><translation>Bedingungen</translation></message>
    <message><source>Only after it lasts</source><translation>Erst nach einer Dauer von</translation></message>
    <message><source>Disk full threshold</source><translation>Schwelle für volles Laufwerk</translation></message>
    <message><source>Disk full alert at</source><translation>Laufwerk-Warnung ab</translation></message>
    <message><source>Battery low alert at</source><translation>Akku-Warnung ab</translation></message>
    <message><source>CPU temperature alert at</source><translation>CPU-Temperatur-Warnung ab</translation></message>
    <message><source>Send test notification</source><translation>Testbenachrichtigung senden</translation></message>
    <!-- Notifications -->
    <message><source>High CPU usage</source><translation>Hohe CPU-Auslastung</translation></message>
    <message>
        <source>The CPU has been at %@ or more for a while.</source>
        <translation>Die CPU ist seit einer Weile zu %@ oder mehr ausgelastet.</translation>
    </message>
    <message><source>Memory is running low</source><translation>Speicher wird knapp</translation></message>
    <message>
        <source>%@ of %@ in use and the system is under memory pressure.</source>
        <translation>%@ von %@ belegt; dem System wird der Speicher knapp.</translation>
    </message>
    <message>
        <source>Only %@ free on the startup disk.</source>
        <translation>Nur noch %@ auf dem Startvolume frei.</translation>
    </message>
    <message><source>Only %@ free on %@.</source><translation>Nur noch %@ auf %@ frei.</translation></message>
    <message><source>Battery low</source><translation>Akku fast leer</translation></message>
    <message>
        <source>%@ left. Plug in the charger.</source>
        <translation>Noch %@. Schließe das Ladegerät an.</translation>
    </message>
    <message><source>CPU is running hot</source><translation>CPU ist sehr heiß</translation></message>
    <message>
        <source>The CPU temperature is %@.</source>
        <translation>Die CPU-Temperatur beträgt %@.</translation>
    </message>
    <message>
        <source>Notifications are working.</source>
        <translation>Benachrichtigungen funktionieren.</translation>
    </message>
    <message><source>Test notification sent.</source><translation>Testbenachrichtigung gesendet.</translation></message>
    <message>
        <source>Notifications are turned off for Vantrix. Enable them in System Settings → Notifications.</source>
        <translation>Benachrichtigungen sind für Vantrix deaktiviert. Aktiviere sie unter „Systemeinstellungen → Mitteilungen“.</translation>
    </message>
    <message>
        <source>This copy of Vantrix is signed without a developer's identity, and macOS shows no notifications of such programs.</source>
        <translation>Diese Kopie von Vantrix ist ohne Entwickleridentität signiert, und macOS zeigt von solchen Programmen keine Benachrichtigungen an.</translation>
    </message>
    <!-- A value in a graph: how long ago it was -->
    <message><source>now</source><translation>jetzt</translation></message>
    <message><source>%lld s ago</source><translation>vor %lld Sek.</translation></message>
    <message><source>%lld min ago</source><translation>vor %lld Min.</translation></message>
    <!-- Read out by assistive programs -->
    <message><source>now %@, lowest %@, highest %@</source><translation>jetzt %@, niedrigster Wert %@, höchster Wert %@</translation></message>
    <message><source>CPU load</source><translation>CPU-Auslastung</translation></message>
    <message><source>Load of each core</source><translation>Auslastung der einzelnen Kerne</translation></message>
    <message><source>Memory in use</source><translation>Belegter Speicher</translation></message>
    <message><source>Disk space in use</source><translation>Belegter Speicherplatz</translation></message>
    <message><source>GPU load</source><translation>GPU-Auslastung</translation></message>
    <message><source>Download history</source><translation>Download-Verlauf</translation></message>
    <message><source>Upload history</source><translation>Upload-Verlauf</translation></message>
    <message><source>Read history</source><translation>Leseverlauf</translation></message>
    <message><source>Write history</source><translation>Schreibverlauf</translation></message>
    <message><source>GPU history</source><translation>GPU-Verlauf</translation></message>
    <!-- Accessories without a name, and the case of earbuds -->
    <message><source>Bluetooth device</source><translation>Bluetooth-Gerät</translation></message>
    <message><source>Wireless device</source><translation>Kabelloses Gerät</translation></message>
    <message><source>Graphics tablet</source><translation>Grafiktablett</translation></message>
    <message><source>Game controller</source><translation>Gamecontroller</translation></message>
    <message><source>%@ case</source><translation>%@ (Etui)</translation></message>
    <!-- Names in the readings shown as an example -->
    <message><source>Home</source><translation>Zuhause</translation></message>
    <message><source>Keyboard</source><translation>Tastatur</translation></message>
    <message><source>Mouse</source><translation>Maus</translation></message>
    <message><source>Headphones</source><translation>Kopfhörer</translation></message>
    <message><source>Wi-Fi</source><translation>WLAN</translation></message>
    <message><source>Ethernet</source><translation>Ethernet</translation></message>
    <message><source>USB Ethernet</source><translation>USB-Ethernet</translation></message>
    <message><source>Mobile broadband</source><translation>Mobiles Breitband</translation></message>
    <message><source>VPN</source><translation>VPN</translation></message>
    <message><source>Bluetooth</source><translation>Bluetooth</translation></message>
    <message><source>PPP</source><translation>PPP</translation></message>
    <message><source>Bridge</source><translation>Bridge</translation></message>
    <message><source>Bond</source><translation>Bündelung</translation></message>
    <message><source>VLAN</source><translation>VLAN</translation></message>
    <message><source>%@°C</source><translation>%@ °C</translation></message>
    <message><source>%@°F</source><translation>%@ °F</translation></message>
    <message><source>Battery charge</source><translation>Akkuladung</translation></message>
</context>
</TS>
