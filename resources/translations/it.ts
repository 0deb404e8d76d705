<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
<context>
    <name></name>
    <!-- The menu -->
    <message><source>Vantrix</source><translation>Vantrix</translation></message>
    <message><source>Open Vantrix</source><translation>Apri Vantrix</translation></message>
    <message><source>Settings…</source><translation>Impostazioni…</translation></message>
    <message><source>Quit Vantrix</source><translation>Esci da Vantrix</translation></message>
    <message><source>Vantrix menu</source><translation>Menu di Vantrix</translation></message>
    <message><source>Settings and quit</source><translation>Impostazioni e uscita</translation></message>
    <!-- Readings, layouts and tabs -->
    <message><source>CPU</source><translation>CPU</translation></message>
    <message><source>Memory</source><translation>Memoria</translation></message>
    <message><source>Network</source><translation>Rete</translation></message>
    <message><source>Disk</source><translation>Disco</translation></message>
    <message><source>GPU</source><translation>GPU</translation></message>
    <message><source>CPU temperature</source><translation>Temperatura CPU</translation></message>
    <message><source>Battery</source><translation>Batteria</translation></message>
    <message><source>Sensors</source><translation>Sensori</translation></message>
    <message><source>Accessories</source><translation>Accessori</translation></message>
    <message><source>Bluetooth accessories</source><translation>Accessori Bluetooth</translation></message>
    <message><source>Inline</source><translation>In linea</translation></message>
    <message><source>Stacked</source><translation>Su due righe</translation></message>
    <message><source>With graph</source><translation>Con grafico</translation></message>
    <message><source>General</source><translation>Generali</translation></message>
    <message><source>Menu Bar</source><translation>Barra dei menu</translation></message>
    <message><source>Popover</source><translation>Panoramica</translation></message>
    <message><source>Alerts</source><translation>Avvisi</translation></message>
    <!-- Captions beside the values of the status item: as short as CPU and RAM -->
    <message><source>DISK</source><translation>DISCO</translation></message>
    <message><source>CHG</source><translation>CAR</translation></message>
    <message><source>BAT</source><translation>BAT</translation></message>
    <!-- Cards -->
    <message>
        <source>No cards selected. Choose what to show in Settings → Popover.</source>
        <translation>Nessuna scheda selezionata. Scegli cosa mostrare in Impostazioni → Panoramica.</translation>
    </message>
    <message><source>User</source><translation>Utente</translation></message>
    <message><source>System</source><translation>Sistema</translation></message>
    <message><source>Idle</source><translation>Inattiva</translation></message>
    <message numerus="yes">
        <source>%lld cores</source>
        <translation><numerusform>%lld core</numerusform><numerusform>%lld core</numerusform></translation>
    </message>
    <message><source>%lld cores (%lldP + %lldE)</source><translation>%lld core (%lldP + %lldE)</translation></message>
    <message><source>App</source><translation>App</translation></message>
    <message><source>Wired</source><translation>Riservata</translation></message>
    <message><source>Compressed</source><translation>Compressa</translation></message>
    <message><source>Swap used</source><translation>Swap in uso</translation></message>
    <message><source>Pressure: normal</source><translation>Pressione: normale</translation></message>
    <message><source>Pressure: warning</source><translation>Pressione: elevata</translation></message>
    <message><source>Pressure: critical</source><translation>Pressione: critica</translation></message>
    <message><source>Kernel</source><translation>Kernel</translation></message>
    <message><source>Programs by CPU use</source><translation>Programmi per uso della CPU</translation></message>
    <message><source>Programs by memory use</source><translation>Programmi per uso della memoria</translation></message>
    <message><source>of %@</source><translation>di %@</translation></message>
    <message><source>%@ free</source><translation>%@ liberi</translation></message>
    <message><source>%@ free of %@</source><translation>%@ liberi su %@</translation></message>
    <message><source>Download</source><translation>Download</translation></message>
    <message><source>Upload</source><translation>Upload</translation></message>
    <message>
        <source>Network name unavailable</source>
        <translation>Nome della rete non disponibile</translation>
    </message>
    <message>
        <source>Allow location access to show the network name</source>
        <translation>Consenti l’accesso alla posizione per mostrare il nome della rete</translation>
    </message>
    <message><source>Signal</source><translation>Segnale</translation></message>
    <message><source>Signal-to-noise</source><translation>Segnale/rumore</translation></message>
    <message><source>Link speed</source><translation>Velocità di connessione</translation></message>
    <message><source>Interface</source><translation>Interfaccia</translation></message>
    <message><source>IP address</source><translation>Indirizzo IP</translation></message>
    <message><source>%@ is not available</source><translation>%@ non è disponibile</translation></message>
    <message><source>Excellent</source><translation>Eccellente</translation></message>
    <message><source>Good</source><translation>Buono</translation></message>
    <message><source>Fair</source><translation>Discreto</translation></message>
    <message><source>Weak</source><translation>Debole</translation></message>
    <message><source>Read</source><translation>Lettura</translation></message>
    <message><source>Write</source><translation>Scrittura</translation></message>
    <message><source>SoC</source><translation>SoC</translation></message>
    <message><source>SSD</source><translation>SSD</translation></message>
    <message><source>max %@</source><translation>max %@</translation></message>
    <message><source>System power</source><translation>Consumo del sistema</translation></message>
    <message><source>Adapter input</source><translation>Ingresso alimentatore</translation></message>
    <message><source>CPU power</source><translation>Consumo CPU</translation></message>
    <message><source>GPU power</source><translation>Consumo GPU</translation></message>
    <message><source>Neural Engine</source><translation>Neural Engine</translation></message>
    <message><source>Memory (DRAM)</source><translation>Memoria (DRAM)</translation></message>
    <message><source>Fan %lld</source><translation>Ventola %lld</translation></message>
    <message><source>All sensors (%lld)</source><translation>Tutti i sensori (%lld)</translation></message>
    <message>
        <source>Temperatures are not available on this Mac.</source>
        <translation>Le temperature non sono disponibili su questo Mac.</translation>
    </message>
    <message><source>Charging</source><translation>In carica</translation></message>
    <message><source>Plugged in</source><translation>Collegata alla corrente</translation></message>
    <message><source>On battery</source><translation>A batteria</translation></message>
    <message><source>to full: %@</source><translation>carica completa tra %@</translation></message>
    <message><source>left: %@</source><translation>tempo residuo: %@</translation></message>
    <message><source>Maximum capacity</source><translation>Capacità massima</translation></message>
    <message><source>Cycle count</source><translation>Cicli di carica</translation></message>
    <message><source>Temperature</source><translation>Temperatura</translation></message>
    <message><source>Charging power</source><translation>Potenza di carica</translation></message>
    <message><source>Discharge power</source><translation>Potenza di scarica</translation></message>
    <message numerus="yes">
        <source>%lld connected</source>
        <translation><numerusform>%lld connesso</numerusform><numerusform>%lld connessi</numerusform></translation>
    </message>
    <!-- Values with their units -->
    <message numerus="yes">
        <source>%lld seconds</source>
        <translation><numerusform>%lld secondo</numerusform><numerusform>%lld secondi</numerusform></translation>
    </message>
    <message><source>%lldh %lldm</source><translation>%lld h %lld min</translation></message>
    <message><source>%lldm</source><translation>%lld min</translation></message>
    <message numerus="yes">
        <source>%lld bytes</source>
        <translation><numerusform>%lld byte</numerusform><numerusform>%lld byte</numerusform></translation>
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
    <message><source>%@ kb</source><translation>%@ kb</translation></message>
    <message><source>%@ Mb</source><translation>%@ Mb</translation></message>
    <message><source>%@ Gb</source><translation>%@ Gb</translation></message>
    <message><source>%@ Tb</source><translation>%@ Tb</translation></message>
    <message numerus="yes">
        <source>%lld bits</source>
        <translation><numerusform>%lld bit</numerusform><numerusform>%lld bit</numerusform></translation>
    </message>
    <message><source>%@/s</source><translation>%@/s</translation></message>
    <message><source>%lld dBm · %@</source><translation>%lld dBm · %@</translation></message>
    <message><source>%@ dB</source><translation>%@ dB</translation></message>
    <message><source>%@ Mbps</source><translation>%@ Mbps</translation></message>
    <message><source>%@ rpm</source><translation>%@ giri/min</translation></message>
    <message><source>%@ W</source><translation>%@ W</translation></message>
    <!-- Settings -->
    <message><source>Vantrix Settings</source><translation>Impostazioni di Vantrix</translation></message>
    <message><source>Launch at login</source><translation>Avvia al login</translation></message>
    <message><source>Update every</source><translation>Aggiorna ogni</translation></message>
    <message><source>Color thresholds</source><translation>Soglie dei colori</translation></message>
    <message><source>Warning</source><translation>Attenzione</translation></message>
    <message><source>Critical</source><translation>Critico</translation></message>
    <message><source>Warning threshold</source><translation>Soglia di attenzione</translation></message>
    <message><source>Critical threshold</source><translation>Soglia critica</translation></message>
    <message>
        <source>Bars, rings and the menu bar turn orange and red above these values.</source>
        <translation>Sopra questi valori le barre, gli anelli e la barra dei menu diventano arancioni e rossi.</translation>
    </message>
    <message>
        <source>Nothing turns orange: the warning threshold is not below the critical one.</source>
        <translation>Nulla diventa arancione: la soglia di attenzione non è inferiore a quella critica.</translation>
    </message>
    <message><source>Units</source><translation>Unità</translation></message>
    <message><source>°C</source><translation>°C</translation></message>
    <message><source>°F</source><translation>°F</translation></message>
    <message><source>Bytes</source><translation>Byte</translation></message>
    <message><source>Bits</source><translation>Bit</translation></message>
    <message><source>GB</source><translation>GB</translation></message>
    <message><source>GiB</source><translation>GiB</translation></message>
    <message>
        <source>Memory is counted in steps of 1024 under either name.</source>
        <translation>La memoria si conta a passi di 1024 con entrambi i nomi.</translation>
    </message>
    <message><source>Preview</source><translation>Anteprima</translation></message>
    <message><source>Select at least one module</source><translation>Seleziona almeno un modulo</translation></message>
    <message><source>Style</source><translation>Stile</translation></message>
    <message><source>Layout</source><translation>Disposizione</translation></message>
    <message>
        <source>Color values above the thresholds</source>
        <translation>Colora i valori oltre le soglie</translation>
    </message>
    <message><source>Modules</source><translation>Moduli</translation></message>
    <message>
        <source>Only the checked modules appear in the menu bar, in this order. With none selected, Vantrix shows just its icon.</source>
        <translation>Nella barra dei menu compaiono solo i moduli selezionati, in quest’ordine. Se non ne selezioni nessuno, Vantrix mostra solo la sua icona.</translation>
    </message>
    <message><source>Move %@ up</source><translation>Sposta più su: %@</translation></message>
    <message><source>Move %@ down</source><translation>Sposta più giù: %@</translation></message>
    <message><source>What modules show</source><translation>Contenuto dei moduli</translation></message>
    <message><source>Space in use</source><translation>Spazio usato</translation></message>
    <message><source>Read and write</source><translation>Lettura e scrittura</translation></message>
    <message><source>Mean</source><translation>Media</translation></message>
    <message><source>Hottest</source><translation>Massima</translation></message>
    <message><source>Network interface</source><translation>Interfaccia di rete</translation></message>
    <message><source>All hardware ports</source><translation>Tutte le porte hardware</translation></message>
    <message><source>Disk volume</source><translation>Volume</translation></message>
    <message><source>System volume</source><translation>Volume di sistema</translation></message>
    <message>
        <source>Interface and volume count in the popover and for alerts as well.</source>
        <translation>Interfaccia e volume valgono anche per la panoramica e gli avvisi.</translation>
    </message>
    <message><source>Cards</source><translation>Schede</translation></message>
    <message>
        <source>GPU, Sensors and Battery only appear on Macs that report them.</source>
        <translation>GPU, Sensori e Batteria compaiono solo sui Mac che ne forniscono i dati.</translation>
    </message>
    <message><source>Send notifications</source><translation>Invia notifiche</translation></message>
    <message>
        <source>Each alert is sent at most once every 15 minutes.</source>
        <translation>Ogni avviso viene inviato al massimo una volta ogni 15 minuti.</translation>
    </message>
    <message>
        <source>The CPU alert uses the critical threshold from General.</source>
        <translation>L’avviso per la CPU usa la soglia critica impostata in Generali.</translation>
    </message>
    <message><source>Name the programs responsible</source><translation>Indica i programmi responsabili</translation></message>
    <message><source>Notify me about</source><translation>Avvisami in caso di</translation></message>
    <message><source>CPU above %@</source><translation>CPU oltre il %@</translation></message>
    <message><source>Memory under pressure</source><translation>Memoria sotto pressione</translation></message>
    <message><source>Disk almost full</source><translation>Disco quasi pieno</translation></message>
    <message>
        <source>Battery at %@ or less, not charging</source>
        <translation>Batteria al %@ o meno, non in carica</translation>
    </message>
    <message>
        <source>CPU temperature above 95 °C</source>
        <translation>Temperatura CPU oltre 95 °C</translation>
    </message>
    <message><source>CPU temperature above %@</source><translation>Temperatura CPU oltre %@</translation></message>
    <message><source>Conditions</source><translation>Condizioni</translation></message>
    <message><source>Only after it lasts</source><translation>Solo se dura almeno</translation></message>
    <message><source>Disk full threshold</source><translation>Soglia di disco pieno</translation></message>
    <message><source>Disk full alert at</source><translation>Avviso di disco pieno al</translation></message>
    <message><source>Battery low alert at</source><translation>Avviso di batteria scarica al</translation></message>
    <message><source>CPU temperature alert at</source><translation>Avviso di temperatura CPU a</translation></message>
    <message><source>Send test notification</source><translation>Invia notifica di prova</translation></message>
    <!-- Notifications -->
    <message><source>High CPU usage</source><translation>Utilizzo elevato della CPU</translation></message>
    <message>
        <source>The CPU has been at %@ or more for a while.</source>
        <translation>La CPU è da un po’ al %@ o più.</translation>
    </message>
    <message><source>Memory is running low</source><translation>Memoria quasi esaurita</translation></message>
    <message>
        <source>%@ of %@ in use and the system is under memory pressure.</source>
        <translation>%@ di %@ in uso: il sistema è a corto di memoria.</translation>
    </message>
    <message>
        <source>Only %@ free on the startup disk.</source>
        <translation>Solo %@ liberi sul disco di avvio.</translation>
    </message>
    <message><source>Only %@ free on %@.</source><translation>Solo %@ liberi su %@.</translation></message>
    <message><source>Battery low</source><translation>Batteria quasi scarica</translation></message>
    <message>
        <source>%@ left. Plug in the charger.</source>
        <translation>%@ rimanente. Collega l’alimentatore.</translation>
    </message>
    <message><source>CPU is running hot</source><translation>CPU surriscaldata</translation></message>
    <message>
        <source>The CPU temperature is %@.</source>
        <translation>La temperatura della CPU è di %@.</translation>
    </message>
    <message><source>Notifications are working.</source><translation>Le notifiche funzionano.</translation></message>
    <message><source>Test notification sent.</source><translation>Notifica di prova inviata.</translation></message>
    <message>
        <source>Notifications are turned off for Vantrix. Enable them in System Settings → Notifications.</source>
        <translation>Le notifiche di Vantrix sono disattivate. Attivale in Impostazioni di Sistema → Notifiche.</translation>
    </message>
    <message>
        <source>This copy of Vantrix is signed without a developer's identity, and macOS shows no notifications of such programs.</source>
        <translation>Questa copia di Vantrix è firmata senza l'identità di uno sviluppatore, e macOS non mostra le notifiche di programmi simili.</translation>
    </message>
    <!-- A value in a graph: how long ago it was -->
    <message><source>now</source><translation>adesso</translation></message>
    <message><source>%lld s ago</source><translation>%lld s fa</translation></message>
    <message><source>%lld min ago</source><translation>%lld min fa</translation></message>
    <!-- Read out by assistive programs -->
    <message><source>now %@, lowest %@, highest %@</source><translation>ora %@, minimo %@, massimo %@</translation></message>
    <message><source>CPU load</source><translation>Carico della CPU</translation></message>
    <message><source>Load of each core</source><translation>Carico di ogni core</translation></message>
    <message><source>Memory in use</source><translation>Memoria in uso</translation></message>
    <message><source>Disk space in use</source><translation>Spazio su disco in uso</translation></message>
    <message><source>GPU load</source><translation>Carico della GPU</translation></message>
    <message><source>Download history</source><translation>Andamento del download</translation></message>
    <message><source>Upload history</source><translation>Andamento dell’upload</translation></message>
    <message><source>Read history</source><translation>Andamento della lettura</translation></message>
    <message><source>Write history</source><translation>Andamento della scrittura</translation></message>
    <message><source>GPU history</source><translation>Andamento della GPU</translation></message>
    <!-- Accessories without a name, and the case of earbuds -->
    <message><source>Bluetooth device</source><translation>Dispositivo Bluetooth</translation></message>
    <message><source>Wireless device</source><translation>Dispositivo senza fili</translation></message>
    <message><source>Graphics tablet</source><translation>Tavoletta grafica</translation></message>
    <message><source>Game controller</source><translation>Controller di gioco</translation></message>
    <message><source>%@ case</source><translation>Custodia di %@</translation></message>
    <!-- Names in the readings shown as an example -->
    <message><source>Home</source><translation>Casa</translation></message>
    <message><source>Keyboard</source><translation>Tastiera</translation></message>
    <message><source>Mouse</source><translation>Mouse</translation></message>
    <message><source>Headphones</source><translation>Cuffie</translation></message>
    <message><source>Wi-Fi</source><translation>Wi-Fi</translation></message>
    <message><source>Ethernet</source><translation>Ethernet</translation></message>
    <message><source>USB Ethernet</source><translation>Ethernet USB</translation></message>
    <message><source>Mobile broadband</source><translation>Banda larga mobile</translation></message>
    <message><source>VPN</source><translation>VPN</translation></message>
    <message><source>Bluetooth</source><translation>Bluetooth</translation></message>
    <message><source>PPP</source><translation>PPP</translation></message>
    <message><source>Bridge</source><translation>Bridge</translation></message>
    <message><source>Bond</source><translation>Aggregazione</translation></message>
    <message><source>VLAN</source><translation>VLAN</translation></message>
    <message><source>%@°C</source><translation>%@ °C</translation></message>
    <message><source>%@°F</source><translation>%@ °F</translation></message>
    <message><source>Battery charge</source><translation>Carica della batteria</translation></message>
</context>
</TS>
