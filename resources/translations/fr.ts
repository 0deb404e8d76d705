<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name></name>
    <!-- The menu -->
    <message><source>Vantrix</source><translation>Vantrix</translation></message>
    <message><source>Open Vantrix</source><translation>Ouvrir Vantrix</translation></message>
    <message><source>Settings…</source><translation>Paramètres…</translation></message>
    <message><source>Quit Vantrix</source><translation>Quitter Vantrix</translation></message>
    <message><source>Vantrix menu</source><translation>Menu de Vantrix</translation></message>
    <message><source>Settings and quit</source><translation>Paramètres et sortie</translation></message>
    <!-- Readings, layouts and tabs -->
    <message><source>CPU</source><translation>CPU</translation></message>
    <message><source>Memory</source><translation>Mémoire</translation></message>
    <message><source>Network</source><translation>Réseau</translation></message>
    <message><source>Disk</source><translation>Disque</translation></message>
    <message><source>GPU</source><translation>GPU</translation></message>
    <message><source>CPU temperature</source><translation>Température du CPU</translation></message>
    <message><source>Battery</source><translation>Batterie</translation></message>
    <message><source>Sensors</source><translation>Capteurs</translation></message>
    <message><source>Accessories</source><translation>Accessoires</translation></message>
    <message><source>Bluetooth accessories</source><translation>Accessoires Bluetooth</translation></message>
    <message><source>Inline</source><translation>En ligne</translation></message>
    <message><source>Stacked</source><translation>Empilé</translation></message>
    <message><source>With graph</source><translation>Avec graphique</translation></message>
    <message><source>General</source><translation>Général</translation></message>
    <message><source>Menu Bar</source><translation>Barre des menus</translation></message>
    <message><source>Popover</source><translation>Vue d’ensemble</translation></message>
    <message><source>Alerts</source><translation>Alertes</translation></message>
    <!-- Captions beside the values of the status item: as short as CPU and RAM -->
    <message><source>DISK</source><translation>DISQ</translation></message>
    <message><source>CHG</source><translation>CHG</translation></message>
    <message><source>BAT</source><translation>BAT</translation></message>
    <!-- Cards -->
    <message>
        <source>No cards selected. Choose what to show in Settings → Popover.</source>
        <translation>Aucune carte sélectionnée. Choisissez ce qui s’affiche dans Paramètres → Vue d’ensemble.</translation>
    </message>
    <message><source>User</source><translation>Utilisateur</translation></message>
    <message><source>System</source><translation>Système</translation></message>
    <message><source>Idle</source><translation>Inactif</translation></message>
    <message numerus="yes">
        <source>%lld cores</source>
        <translation><numerusform>%lld cœur</numerusform><numerusform>%lld cœurs</numerusform></translation>
    </message>
    <message><source>%lld cores (%lldP + %lldE)</source><translation>%lld cœurs (%lldP + %lldE)</translation></message>
    <message><source>App</source><translation>Apps</translation></message>
    <message><source>Wired</source><translation>Réservée</translation></message>
    <message><source>Compressed</source><translation>Compressée</translation></message>
    <message><source>Swap used</source><translation>Swap utilisé</translation></message>
    <message><source>Pressure: normal</source><translation>Pression : normale</translation></message>
    <message><source>Pressure: warning</source><translation>Pression : élevée</translation></message>
    <message><source>Pressure: critical</source><translation>Pression : critique</translation></message>
    <message><source>Kernel</source><translation>Noyau</translation></message>
    <message><source>Programs by CPU use</source><translation>Programmes par utilisation du processeur</translation></message>
    <message><source>Programs by memory use</source><translation>Programmes par utilisation de la mémoire</translation></message>
    <message><source>of %@</source><translation>sur %@</translation></message>
    <message><source>%@ free</source><translation>%@ libres</translation></message>
    <message><source>%@ free of %@</source><translation>%@ libres sur %@</translation></message>
    <message><source>Download</source><translation>Réception</translation></message>
    <message><source>Upload</source><translation>Envoi</translation></message>
    <message><source>Network name unavailable</source><translation>Nom du réseau indisponible</translation></message>
    <message>
        <source>Allow location access to show the network name</source>
        <translation>Autoriser l’accès à la position pour afficher le nom du réseau</translation>
    </message>
    <message><source>Signal</source><translation>Signal</translation></message>
    <message><source>Signal-to-noise</source><translation>Signal/bruit</translation></message>
    <message><source>Link speed</source><translation>Débit de liaison</translation></message>
    <message><source>Interface</source><translation>Interface</translation></message>
    <message><source>IP address</source><translation>Adresse IP</translation></message>
    <message><source>%@ is not available</source><translation>%@ n’est pas disponible</translation></message>
    <message><source>Excellent</source><translation>Excellent</translation></message>
    <message><source>Good</source><translation>Bon</translation></message>
    <message><source>Fair</source><translation>Moyen</translation></message>
    <message><source>Weak</source><translation>Faible</translation></message>
    <message><source>Read</source><translation>Lecture</translation></message>
    <message><source>Write</source><translation>Écriture</translation></message>
    <message><source>SoC</source><translation>SoC</translation></message>
    <message><source>SSD</source><translation>SSD</translation></message>
    <message><source>max %@</source><translation>max %@</translation></message>
    <message><source>System power</source><translation>Consommation totale</translation></message>
    <message><source>Adapter input</source><translation>Entrée du chargeur</translation></message>
    <message><source>CPU power</source><translation>Consommation CPU</translation></message>
    <message><source>GPU power</source><translation>Consommation GPU</translation></message>
    <message><source>Neural Engine</source><translation>Neural Engine</translation></message>
    <message><source>Memory (DRAM)</source><translation>Mémoire (DRAM)</translation></message>
    <message><source>Fan %lld</source><translation>Ventilateur %lld</translation></message>
    <message><source>All sensors (%lld)</source><translation>Tous les capteurs (%lld)</translation></message>
    <message>
        <source>Temperatures are not available on this Mac.</source>
        <translation>Les températures ne sont pas disponibles sur ce Mac.</translation>
    </message>
    <message><source>Charging</source><translation>En charge</translation></message>
    <message><source>Plugged in</source><translation>Sur secteur</translation></message>
    <message><source>On battery</source><translation>Sur batterie</translation></message>
    <message><source>to full: %@</source><translation>pleine charge dans %@</translation></message>
    <message><source>left: %@</source><translation>temps restant : %@</translation></message>
    <message><source>Maximum capacity</source><translation>Capacité maximale</translation></message>
    <message><source>Cycle count</source><translation>Cycles de charge</translation></message>
    <message><source>Temperature</source><translation>Température</translation></message>
    <message><source>Charging power</source><translation>Puissance de charge</translation></message>
    <message><source>Discharge power</source><translation>Puissance de décharge</translation></message>
    <message numerus="yes">
        <source>%lld connected</source>
        <translation><numerusform>%lld connecté</numerusform><numerusform>%lld connectés</numerusform></translation>
    </message>
    <!-- Values with their units -->
    <message numerus="yes">
        <source>%lld seconds</source>
        <translation><numerusform>%lld seconde</numerusform><numerusform>%lld secondes</numerusform></translation>
    </message>
    <message><source>%lldh %lldm</source><translation>%lld h %lld min</translation></message>
    <message><source>%lldm</source><translation>%lld min</translation></message>
    <message numerus="yes">
        <source>%lld bytes</source>
        <translation><numerusform>%lld octet</numerusform><numerusform>%lld octets</numerusform></translation>
    </message>
    <message><source>%@ KB</source><translation>%@ ko</translation></message>
    <message><source>%@ MB</source><translation>%@ Mo</translation></message>
    <message><source>%@ GB</source><translation>%@ Go</translation></message>
    <message><source>%@ TB</source><translation>%@ To</translation></message>
    <message><source>%@ PB</source><translation>%@ Po</translation></message>
    <message><source>%@ EB</source><translation>%@ Eo</translation></message>
    <message><source>%@ KiB</source><translation>%@ Kio</translation></message>
    <message><source>%@ MiB</source><translation>%@ Mio</translation></message>
    <message><source>%@ GiB</source><translation>%@ Gio</translation></message>
    <message><source>%@ TiB</source><translation>%@ Tio</translation></message>
    <message><source>%@ kb</source><translation>%@ kbit</translation></message>
    <message><source>%@ Mb</source><translation>%@ Mbit</translation></message>
    <message><source>%@ Gb</source><translation>%@ Gbit</translation></message>
    <message><source>%@ Tb</source><translation>%@ Tbit</translation></message>
    <message numerus="yes">
        <source>%lld bits</source>
        <translation><numerusform>%lld bit</numerusform><numerusform>%lld bits</numerusform></translation>
    </message>
    <message><source>%@/s</source><translation>%@/s</translation></message>
    <message><source>%lld dBm · %@</source><translation>%lld dBm · %@</translation></message>
    <message><source>%@ dB</source><translation>%@ dB</translation></message>
    <message><source>%@ Mbps</source><translation>%@ Mbit/s</translation></message>
    <message><source>%@ rpm</source><translation>%@ tr/min</translation></message>
    <message><source>%@ W</source><translation>%@ W</translation></message>
    <!-- Settings -->
    <message><source>Vantrix Settings</source><translation>Paramètres de Vantrix</translation></message>
    <message><source>Launch at login</source><translation>Lancer à l’ouverture de session</translation></message>
    <message><source>Update every</source><translation>Intervalle d’actualisation</translation></message>
    <message><source>Color thresholds</source><translation>Seuils de couleur</translation></message>
    <message><source>Warning</source><translation>Avertissement</translation></message>
    <message><source>Critical</source><translation>Critique</translation></message>
    <message><source>Warning threshold</source><translation>Seuil d’avertissement</translation></message>
    <message><source>Critical threshold</source><translation>Seuil critique</translation></message>
    <message>
        <source>Bars, rings and the menu bar turn orange and red above these values.</source>
        <translation>Au-dessus de ces valeurs, les barres, les anneaux et la barre des menus passent à l’orange puis au rouge.</translation>
    </message>
    <message>
        <source>Nothing turns orange: the warning threshold is not below the critical one.</source>
        <translation>Rien ne passe à l’orange : le seuil d’avertissement n’est pas inférieur au seuil critique.</translation>
    </message>
    <message><source>Units</source><translation>Unités</translation></message>
    <message><source>°C</source><translation>°C</translation></message>
    <message><source>°F</source><translation>°F</translation></message>
    <message><source>Bytes</source><translation>Octets</translation></message>
    <message><source>Bits</source><translation>Bits</translation></message>
    <message><source>GB</source><translation>Go</translation></message>
    <message><source>GiB</source><translation>Gio</translation></message>
    <message>
        <source>Memory is counted in steps of 1024 under either name.</source>
        <translation>La mémoire est comptée par pas de 1024 sous les deux noms.</translation>
    </message>
    <message><source>Preview</source><translation>Aperçu</translation></message>
    <message>
        <source>Select at least one module</source>
        <translation>Sélectionnez au moins un module</translation>
    </message>
    <message><source>Style</source><translation>Style</translation></message>
    <message><source>Layout</source><translation>Disposition</translation></message>
    <message>
        <source>Color values above the thresholds</source>
        <translation>Colorer les valeurs au-dessus des seuils</translation>
    </message>
    <message><source>Modules</source><translation>Modules</translation></message>
    <message>
        <source>Only the checked modules appear in the menu bar, in this order. With none selected, Vantrix shows just its icon.</source>
        <translation>Seuls les modules cochés apparaissent dans la barre des menus, dans cet ordre. Si aucun n’est coché, Vantrix n’affiche que son icône.</translation>
    </message>
    <message><source>Move %@ up</source><translation>Monter : %@</translation></message>
    <message><source>Move %@ down</source><translation>Descendre : %@</translation></message>
    <message><source>What modules show</source><translation>Contenu des modules</translation></message>
    <message><source>Space in use</source><translation>Espace utilisé</translation></message>
    <message><source>Read and write</source><translation>Lecture et écriture</translation></message>
    <message><source>Mean</source><translation>Moyenne</translation></message>
    <message><source>Hottest</source><translation>Maximale</translation></message>
    <message><source>Network interface</source><translation>Interface réseau</translation></message>
    <message><source>All hardware ports</source><translation>Tous les ports matériels</translation></message>
    <message><source>Disk volume</source><translation>Volume</translation></message>
    <message><source>System volume</source><translation>Volume système</translation></message>
    <message>
        <source>Interface and volume count in the popover and for alerts as well.</source>
        <translation>L’interface et le volume valent aussi pour la vue d’ensemble et les alertes.</translation>
    </message>
    <message><source>Cards</source><translation>Cartes</translation></message>
    <message>
        <source>GPU, Sensors and Battery only appear on Macs that report them.</source>
        <translation>GPU, Capteurs et Batterie n’apparaissent que sur les Mac qui fournissent ces données.</translation>
    </message>
    <message><source>Send notifications</source><translation>Envoyer des notifications</translation></message>
    <message>
        <source>Each alert is sent at most once every 15 minutes.</source>
        <translation>Chaque alerte est envoyée au plus une fois toutes les 15 minutes.</translation>
    </message>
    <message>
        <source>The CPU alert uses the critical threshold from General.</source>
        <translation>L’alerte CPU utilise le seuil critique défini dans Général.</translation>
    </message>
    <message><source>Name the programs responsible</source><translation>Nommer les programmes en cause</translation></message>
    <message><source>Notify me about</source><translation>Situations à signaler</translation></message>
    <message><source>CPU above %@</source><translation>CPU au-dessus de %@</translation></message>
    <message><source>Memory under pressure</source><translation>Mémoire sous pression</translation></message>
    <message><source>Disk almost full</source><translation>Disque presque plein</translation></message>
    <message>
        <source>Battery at %@ or less, not charging</source>
        <translation>Batterie à %@ ou moins, hors charge</translation>
    </message>
    <message>
        <source>CPU temperature above 95 °C</source>
        <translation>Température du CPU au-dessus de 95 °C</translation>
    </message>
    <message>
        <source>CPU temperature above %@</source>
        <translation>Température du CPU au-dessus de %@</translation>
    </message>
    <message><source>Conditions</source><translation>Conditions</translation></message>
    <message><source>Only after it lasts</source><translation>Seulement après une durée de</translation></message>
    <message><source>Disk full threshold</source><translation>Seuil de disque plein</translation></message>
    <message><source>Disk full alert at</source><translation>Alerte de disque plein à</translation></message>
    <message><source>Battery low alert at</source><translation>Alerte de batterie faible à</translation></message>
    <message>
        <source>CPU temperature alert at</source>
        <translation>Alerte de température du CPU à</translation>
    </message>
    <message>
        <source>Send test notification</source>
        <translation>Envoyer une notification de test</translation>
    </message>
    <!-- Notifications -->
    <message><source>High CPU usage</source><translation>Utilisation élevée du CPU</translation></message>
    <message>
        <source>The CPU has been at %@ or more for a while.</source>
        <translation>Le CPU est à %@ ou plus depuis un moment.</translation>
    </message>
    <message><source>Memory is running low</source><translation>Mémoire presque saturée</translation></message>
    <message>
        <source>%@ of %@ in use and the system is under memory pressure.</source>
        <translation>%@ sur %@ utilisés : le système manque de mémoire.</translation>
    </message>
    <message>
        <source>Only %@ free on the startup disk.</source>
        <translation>Plus que %@ libres sur le disque de démarrage.</translation>
    </message>
    <message><source>Only %@ free on %@.</source><translation>Plus que %@ libres sur %@.</translation></message>
    <message><source>Battery low</source><translation>Batterie faible</translation></message>
    <message>
        <source>%@ left. Plug in the charger.</source>
        <translation>Il reste %@. Branchez le chargeur.</translation>
    </message>
    <message><source>CPU is running hot</source><translation>CPU en surchauffe</translation></message>
    <message>
        <source>The CPU temperature is %@.</source>
        <translation>La température du CPU est de %@.</translation>
    </message>
    <message>
        <source>Notifications are working.</source>
        <translation>Les notifications fonctionnent.</translation>
    </message>
    <message><source>Test notification sent.</source><translation>Notification de test envoyée.</translation></message>
    <message>
        <source>Notifications are turned off for Vantrix. Enable them in System Settings → Notifications.</source>
        <translation>Les notifications de Vantrix sont désactivées. Activez-les dans Réglages Système → Notifications.</translation>
    </message>
    <message>
        <source>This copy of Vantrix is signed without a developer's identity, and macOS shows no notifications of such programs.</source>
        <translation>Cette copie de Vantrix est signée sans identité de développeur, et macOS n’affiche pas les notifications de tels programmes.</translation>
    </message>
    <!-- A value in a graph: how long ago it was -->
    <message><source>now</source><translation>maintenant</translation></message>
    <message><source>%lld s ago</source><translation>il y a %lld s</translation></message>
    <message><source>%lld min ago</source><translation>il y a %lld min</translation></message>
    <!-- Read out by assistive programs -->
    <message><source>now %@, lowest %@, highest %@</source><translation>actuellement %@, minimum %@, maximum %@</translation></message>
    <message><source>CPU load</source><translation>Charge du CPU</translation></message>
    <message><source>Load of each core</source><translation>Charge de chaque cœur</translation></message>
    <message><source>Memory in use</source><translation>Mémoire utilisée</translation></message>
    <message><source>Disk space in use</source><translation>Espace disque utilisé</translation></message>
    <message><source>GPU load</source><translation>Charge du GPU</translation></message>
    <message><source>Download history</source><translation>Historique de réception</translation></message>
    <message><source>Upload history</source><translation>Historique d’envoi</translation></message>
    <message><source>Read history</source><translation>Historique de lecture</translation></message>
    <message><source>Write history</source><translation>Historique d’écriture</translation></message>
    <message><source>GPU history</source><translation>Historique du GPU</translation></message>
    <!-- Accessories without a name, and the case of earbuds -->
    <message><source>Bluetooth device</source><translation>Appareil Bluetooth</translation></message>
    <message><source>Wireless device</source><translation>Appareil sans fil</translation></message>
    <message><source>Graphics tablet</source><translation>Tablette graphique</translation></message>
    <message><source>Game controller</source><translation>Manette de jeu</translation></message>
    <message><source>%@ case</source><translation>Boîtier de %@</translation></message>
    <!-- Names in the readings shown as an example -->
    <message><source>Home</source><translation>Maison</translation></message>
    <message><source>Keyboard</source><translation>Clavier</translation></message>
    <message><source>Mouse</source><translation>Souris</translation></message>
    <message><source>Headphones</source><translation>Casque</translation></message>
    <message><source>Wi-Fi</source><translation>Wi-Fi</translation></message>
    <message><source>Ethernet</source><translation>Ethernet</translation></message>
    <message><source>USB Ethernet</source><translation>Ethernet USB</translation></message>
    <message><source>Mobile broadband</source><translation>Réseau mobile</translation></message>
    <message><source>VPN</source><translation>VPN</translation></message>
    <message><source>Bluetooth</source><translation>Bluetooth</translation></message>
    <message><source>PPP</source><translation>PPP</translation></message>
    <message><source>Bridge</source><translation>Pont</translation></message>
    <message><source>Bond</source><translation>Agrégat</translation></message>
    <message><source>VLAN</source><translation>VLAN</translation></message>
    <message><source>%@°C</source><translation>%@ °C</translation></message>
    <message><source>%@°F</source><translation>%@ °F</translation></message>
    <message><source>Battery charge</source><translation>Charge de la batterie</translation></message>
</context>
</TS>
