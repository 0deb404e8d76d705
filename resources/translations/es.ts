<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name></name>
    <!-- The menu -->
    <message><source>Vantrix</source><translation>Vantrix</translation></message>
    <message><source>Open Vantrix</source><translation>Abrir Vantrix</translation></message>
    <message><source>Settings…</source><translation>Ajustes…</translation></message>
    <message><source>Quit Vantrix</source><translation>Salir de Vantrix</translation></message>
    <message><source>Vantrix menu</source><translation>Menú de Vantrix</translation></message>
    <message><source>Settings and quit</source><translation>Ajustes y salida</translation></message>
    <!-- Readings, layouts and tabs -->
    <message><source>CPU</source><translation>CPU</translation></message>
    <message><source>Memory</source><translation>Memoria</translation></message>
    <message><source>Network</source><translation>Red</translation></message>
    <message><source>Disk</source><translation>Disco</translation></message>
    <message><source>GPU</source><translation>GPU</translation></message>
    <message><source>CPU temperature</source><translation>Temperatura de la CPU</translation></message>
    <message><source>Battery</source><translation>Batería</translation></message>
    <message><source>Sensors</source><translation>Sensores</translation></message>
    <message><source>Accessories</source><translation>Accesorios</translation></message>
    <message><source>Bluetooth accessories</source><translation>Accesorios Bluetooth</translation></message>
    <message><source>Inline</source><translation>En línea</translation></message>
    <message><source>Stacked</source><translation>Apilado</translation></message>
    <message><source>With graph</source><translation>Con gráfica</translation></message>
    <message><source>General</source><translation>General</translation></message>
    <message><source>Menu Bar</source><translation>Barra de menús</translation></message>
    <message><source>Popover</source><translation>Resumen</translation></message>
    <message><source>Alerts</source><translation>Avisos</translation></message>
    <!-- Captions beside the values of the status item: as short as CPU and RAM -->
    <message><source>DISK</source><translation>DISCO</translation></message>
    <message><source>CHG</source><translation>CAR</translation></message>
    <message><source>BAT</source><translation>BAT</translation></message>
    <!-- Cards -->
    <message>
        <source>No cards selected. Choose what to show in Settings → Popover.</source>
        <translation>No hay tarjetas seleccionadas. Elige qué mostrar en Ajustes → Resumen.</translation>
    </message>
    <message><source>User</source><translation>Usuario</translation></message>
    <message><source>System</source><translation>Sistema</translation></message>
    <message><source>Idle</source><translation>Inactiva</translation></message>
    <message numerus="yes">
        <source>%lld cores</source>
        <translation><numerusform>%lld núcleo</numerusform><numerusform>%lld núcleos</numerusform></translation>
    </message>
    <message>
        <source>%lld cores (%lldP + %lldE)</source>
        <translation>%lld núcleos (%lldP + %lldE)</translation>
    </message>
    <message><source>App</source><translation>Apps</translation></message>
    <message><source>Wired</source><translation>Reservada</translation></message>
    <message><source>Compressed</source><translation>Comprimida</translation></message>
    <message><source>Swap used</source><translation>Swap en uso</translation></message>
    <message><source>Pressure: normal</source><translation>Presión: normal</translation></message>
    <message><source>Pressure: warning</source><translation>Presión: alta</translation></message>
    <message><source>Pressure: critical</source><translation>Presión: crítica</translation></message>
    <message><source>Kernel</source><translation>Núcleo</translation></message>
    <message><source>Programs by CPU use</source><translation>Programas por uso de CPU</translation></message>
    <message><source>Programs by memory use</source><translation>Programas por uso de memoria</translation></message>
    <message><source>of %@</source><translation>de %@</translation></message>
    <message><source>%@ free</source><translation>%@ libres</translation></message>
    <message><source>%@ free of %@</source><translation>%@ libres de %@</translation></message>
    <message><source>Download</source><translation>Bajada</translation></message>
    <message><source>Upload</source><translation>Subida</translation></message>
    <message><source>Network name unavailable</source><translation>Nombre de red no disponible</translation></message>
    <message>
        <source>Allow location access to show the network name</source>
        <translation>Permitir el acceso a la ubicación para mostrar el nombre de la red</translation>
    </message>
    <message><source>Signal</source><translation>Señal</translation></message>
    <message><source>Signal-to-noise</source><translation>Señal/ruido</translation></message>
    <message><source>Link speed</source><translation>Velocidad de enlace</translation></message>
    <message><source>Interface</source><translation>Interfaz</translation></message>
    <message><source>IP address</source><translation>Dirección IP</translation></message>
    <message><source>%@ is not available</source><translation>%@ no está disponible</translation></message>
    <message><source>Excellent</source><translation>Excelente</translation></message>
    <message><source>Good</source><translation>Buena</translation></message>
    <message><source>Fair</source><translation>Aceptable</translation></message>
    <message><source>Weak</source><translation>Débil</translation></message>
    <message><source>Read</source><translation>Lectura</translation></message>
    <message><source>Write</source><translation>Escritura</translation></message>
    <message><source>SoC</source><translation>SoC</translation></message>
    <message><source>SSD</source><translation>SSD</translation></message>
    <message><source>max %@</source><translation>máx. %@</translation></message>
    <message><source>System power</source><translation>Consumo del sistema</translation></message>
    <message><source>Adapter input</source><translation>Entrada del adaptador</translation></message>
    <message><source>CPU power</source><translation>Consumo de la CPU</translation></message>
    <message><source>GPU power</source><translation>Consumo de la GPU</translation></message>
    <message><source>Neural Engine</source><translation>Neural Engine</translation></message>
    <message><source>Memory (DRAM)</source><translation>Memoria (DRAM)</translation></message>
    <message><source>Fan %lld</source><translation>Ventilador %lld</translation></message>
    <message><source>All sensors (%lld)</source><translation>Todos los sensores (%lld)</translation></message>
    <message>
        <source>Temperatures are not available on this Mac.</source>
        <translation>Las temperaturas no están disponibles en este Mac.</translation>
    </message>
    <message><source>Charging</source><translation>Cargando</translation></message>
    <message><source>Plugged in</source><translation>Conectada a la corriente</translation></message>
    <message><source>On battery</source><translation>Con batería</translation></message>
    <message><source>to full: %@</source><translation>carga completa en %@</translation></message>
    <message><source>left: %@</source><translation>tiempo restante: %@</translation></message>
    <message><source>Maximum capacity</source><translation>Capacidad máxima</translation></message>
    <message><source>Cycle count</source><translation>Ciclos de carga</translation></message>
    <message><source>Temperature</source><translation>Temperatura</translation></message>
    <message><source>Charging power</source><translation>Potencia de carga</translation></message>
    <message><source>Discharge power</source><translation>Potencia de descarga</translation></message>
    <message numerus="yes">
        <source>%lld connected</source>
        <translation><numerusform>%lld conectado</numerusform><numerusform>%lld conectados</numerusform></translation>
    </message>
    <!-- Values with their units -->
    <message numerus="yes">
        <source>%lld seconds</source>
        <translation><numerusform>%lld segundo</numerusform><numerusform>%lld segundos</numerusform></translation>
    </message>
    <message><source>%lldh %lldm</source><translation>%lld h %lld min</translation></message>
    <message><source>%lldm</source><translation>%lld min</translation></message>
    <message numerus="yes">
        <source>%lld bytes</source>
        <translation><numerusform>%lld byte</numerusform><numerusform>%lld bytes</numerusform></translation>
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
        <translation><numerusform>%lld bit</numerusform><numerusform>%lld bits</numerusform></translation>
    </message>
    <message><source>%@/s</source><translation>%@/s</translation></message>
    <message><source>%lld dBm · %@</source><translation>%lld dBm · %@</translation></message>
    <message><source>%@ dB</source><translation>%@ dB</translation></message>
    <message><source>%@ Mbps</source><translation>%@ Mbps</translation></message>
    <message><source>%@ rpm</source><translation>%@ rpm</translation></message>
    <message><source>%@ W</source><translation>%@ W</translation></message>
    <!-- Settings -->
    <message><source>Vantrix Settings</source><translation>Ajustes de Vantrix</translation></message>
    <message><source>Launch at login</source><translation>Abrir al iniciar sesión</translation></message>
    <message><source>Update every</source><translation>Actualizar cada</translation></message>
    <message><source>Color thresholds</source><translation>Umbrales de color</translation></message>
    <message><source>Warning</source><translation>Advertencia</translation></message>
    <message><source>Critical</source><translation>Crítico</translation></message>
    <message><source>Warning threshold</source><translation>Umbral de advertencia</translation></message>
    <message><source>Critical threshold</source><translation>Umbral crítico</translation></message>
    <message>
        <source>Bars, rings and the menu bar turn orange and red above these values.</source>
        <translation>Por encima de estos valores, las barras, los anillos y la barra de menús se vuelven naranjas y rojos.</translation>
    </message>
    <message>
        <source>Nothing turns orange: the warning threshold is not below the critical one.</source>
        <translation>Nada se vuelve naranja: el umbral de advertencia no está por debajo del crítico.</translation>
    </message>
    <message><source>Units</source><translation>Unidades</translation></message>
    <message><source>°C</source><translation>°C</translation></message>
    <message><source>°F</source><translation>°F</translation></message>
    <message><source>Bytes</source><translation>Bytes</translation></message>
    <message><source>Bits</source><translation>Bits</translation></message>
    <message><source>GB</source><translation>GB</translation></message>
    <message><source>GiB</source><translation>GiB</translation></message>
    <message>
        <source>Memory is counted in steps of 1024 under either name.</source>
        <translation>La memoria se cuenta en pasos de 1024 con cualquiera de los dos nombres.</translation>
    </message>
    <message><source>Preview</source><translation>Vista previa</translation></message>
    <message>
        <source>Select at least one module</source>
        <translation>Selecciona al menos un módulo</translation>
    </message>
    <message><source>Style</source><translation>Estilo</translation></message>
    <message><source>Layout</source><translation>Disposición</translation></message>
    <message>
        <source>Color values above the thresholds</source>
        <translation>Colorear los valores que superen los umbrales</translation>
    </message>
    <message><source>Modules</source><translation>Módulos</translation></message>
    <message>
        <source>Only the checked modules appear in the menu bar, in this order. With none selected, Vantrix shows just its icon.</source>
        <translation>En la barra de menús solo aparecen los módulos marcados, en este orden. Si no hay ninguno, Vantrix muestra solo su icono.</translation>
    </message>
    <message><source>Move %@ up</source><translation>Subir: %@</translation></message>
    <message><source>Move %@ down</source><translation>Bajar: %@</translation></message>
    <message><source>What modules show</source><translation>Qué muestran los módulos</translation></message>
    <message><source>Space in use</source><translation>Espacio usado</translation></message>
    <message><source>Read and write</source><translation>Lectura y escritura</translation></message>
    <message><source>Mean</source><translation>Media</translation></message>
    <message><source>Hottest</source><translation>Máxima</translation></message>
    <message><source>Network interface</source><translation>Interfaz de red</translation></message>
    <message><source>All hardware ports</source><translation>Todos los puertos físicos</translation></message>
    <message><source>Disk volume</source><translation>Volumen</translation></message>
    <message><source>System volume</source><translation>Volumen del sistema</translation></message>
    <message>
        <source>Interface and volume count in the popover and for alerts as well.</source>
        <translation>La interfaz y el volumen valen también para el resumen y los avisos.</translation>
    </message>
    <message><source>Cards</source><translation>Tarjetas</translation></message>
    <message>
        <source>GPU, Sensors and Battery only appear on Macs that report them.</source>
        <translation>GPU, Sensores y Batería solo aparecen en los Mac que ofrecen esos datos.</translation>
    </message>
    <message><source>Send notifications</source><translation>Enviar notificaciones</translation></message>
    <message>
        <source>Each alert is sent at most once every 15 minutes.</source>
        <translation>Cada aviso se envía como máximo una vez cada 15 minutos.</translation>
    </message>
    <message>
        <source>The CPU alert uses the critical threshold from General.</source>
        <translation>El aviso de CPU usa el umbral crítico definido en General.</translation>
    </message>
    <message><source>Name the programs responsible</source><translation>Nombrar los programas responsables</translation></message>
    <message><source>Notify me about</source><translation>Situaciones de aviso</translation></message>
    <message><source>CPU above %@</source><translation>CPU por encima del %@</translation></message>
    <message><source>Memory under pressure</source><translation>Memoria bajo presión</translation></message>
    <message><source>Disk almost full</source><translation>Disco casi lleno</translation></message>
    <message>
        <source>Battery at %@ or less, not charging</source>
        <translation>Batería al %@ o menos, sin cargar</translation>
    </message>
    <message>
        <source>CPU temperature above 95 °C</source>
        <translation>Temperatura de la CPU por encima de 95 °C</translation>
    </message>
    <message>
        <source>CPU temperature above %@</source>
        <translation>Temperatura de la CPU por encima de %@</translation>
    </message>
    <message><source>Conditions</source><translation>Condiciones</translation></message>
    <message><source>Only after it lasts</source><translation>Solo si dura al menos</translation></message>
    <message><source>Disk full threshold</source><translation>Umbral de disco lleno</translation></message>
    <message><source>Disk full alert at</source><translation>Aviso de disco lleno al</translation></message>
    <message><source>Battery low alert at</source><translation>Aviso de batería baja al</translation></message>
    <message>
        <source>CPU temperature alert at</source>
        <translation>Aviso de temperatura a</translation>
    </message>
    <message><source>Send test notification</source><translation>Enviar notificación de prueba</translation></message>
    <!-- Notifications -->
    <message><source>High CPU usage</source><translation>Uso elevado de la CPU</translation></message>
    <message>
        <source>The CPU has been at %@ or more for a while.</source>
        <translation>La CPU lleva un rato al %@ o más.</translation>
    </message>
    <message><source>Memory is running low</source><translation>Queda poca memoria</translation></message>
    <message>
        <source>%@ of %@ in use and the system is under memory pressure.</source>
        <translation>%@ de %@ en uso: al sistema le falta memoria.</translation>
    </message>
    <message>
        <source>Only %@ free on the startup disk.</source>
        <translation>Solo quedan %@ libres en el disco de arranque.</translation>
    </message>
    <message><source>Only %@ free on %@.</source><translation>Solo quedan %@ libres en %@.</translation></message>
    <message><source>Battery low</source><translation>Batería baja</translation></message>
    <message>
        <source>%@ left. Plug in the charger.</source>
        <translation>Queda un %@. Conecta el cargador.</translation>
    </message>
    <message><source>CPU is running hot</source><translation>La CPU está muy caliente</translation></message>
    <message>
        <source>The CPU temperature is %@.</source>
        <translation>La temperatura de la CPU es de %@.</translation>
    </message>
    <message>
        <source>Notifications are working.</source>
        <translation>Las notificaciones funcionan.</translation>
    </message>
    <message>
        <source>Test notification sent.</source>
        <translation>Notificación de prueba enviada.</translation>
    </message>
    <message>
        <source>Notifications are turned off for Vantrix. Enable them in System Settings → Notifications.</source>
        <translation>Las notificaciones de Vantrix están desactivadas. Actívalas en Ajustes del Sistema → Notificaciones.</translation>
    </message>
    <message>
        <source>This copy of Vantrix is signed without a developer's identity, and macOS shows no notifications of such programs.</source>
        <translation>Esta copia de Vantrix está firmada sin la identidad de un desarrollador, y macOS no muestra notificaciones de programas así.</translation>
    </message>
    <!-- A value in a graph: how long ago it was -->
    <message><source>now</source><translation>ahora</translation></message>
    <message><source>%lld s ago</source><translation>hace %lld s</translation></message>
    <message><source>%lld min ago</source><translation>hace %lld min</translation></message>
    <!-- Read out by assistive programs -->
    <message><source>now %@, lowest %@, highest %@</source><translation>ahora %@, mínimo %@, máximo %@</translation></message>
    <message><source>CPU load</source><translation>Carga de la CPU</translation></message>
    <message><source>Load of each core</source><translation>Carga de cada núcleo</translation></message>
    <message><source>Memory in use</source><translation>Memoria en uso</translation></message>
    <message><source>Disk space in use</source><translation>Espacio de disco en uso</translation></message>
    <message><source>GPU load</source><translation>Carga de la GPU</translation></message>
    <message><source>Download history</source><translation>Historial de bajada</translation></message>
    <message><source>Upload history</source><translation>Historial de subida</translation></message>
    <message><source>Read history</source><translation>Historial de lectura</translation></message>
    <message><source>Write history</source><translation>Historial de escritura</translation></message>
    <message><source>GPU history</source><translation>Historial de la GPU</translation></message>
    <!-- Accessories without a name, and the case of earbuds -->
    <message><source>Bluetooth device</source><translation>Dispositivo Bluetooth</translation></message>
    <message><source>Wireless device</source><translation>Dispositivo inalámbrico</translation></message>
    <message><source>Graphics tablet</source><translation>Tableta gráfica</translation></message>
    <message><source>Game controller</source><translation>Mando de juego</translation></message>
    <message><source>%@ case</source><translation>Estuche de %@</translation></message>
    <!-- Names in the readings shown as an example -->
    <message><source>Home</source><translation>Casa</translation></message>
    <message><source>Keyboard</source><translation>Teclado</translation></message>
    <message><source>Mouse</source><translation>Ratón</translation></message>
    <message><source>Headphones</source><translation>Auriculares</translation></message>
    <message><source>Wi-Fi</source><translation>Wi-Fi</translation></message>
    <message><source>Ethernet</source><translation>Ethernet</translation></message>
    <message><source>USB Ethernet</source><translation>Ethernet USB</translation></message>
    <message><source>Mobile broadband</source><translation>Banda ancha móvil</translation></message>
    <message><source>VPN</source><translation>VPN</translation></message>
    <message><source>Bluetooth</source><translation>Bluetooth</translation></message>
    <message><source>PPP</source><translation>PPP</translation></message>
    <message><source>Bridge</source><translation>Puente</translation></message>
    <message><source>Bond</source><translation>Agregación</translation></message>
    <message><source>VLAN</source><translation>VLAN</translation></message>
    <message><source>%@°C</source><translation>%@ °C</translation></message>
    <message><source>%@°F</source><translation>%@ °F</translation></message>
    <message><source>Battery charge</source><translation>Carga de la batería</translation></message>
</context>
</TS>
