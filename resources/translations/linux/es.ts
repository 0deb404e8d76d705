<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name></name>
    <!-- Texts that would be wrong on Linux: the source is the wording of the other tables -->
    <message>
        <source>GPU, Sensors and Battery only appear on Macs that report them.</source>
        <translation>GPU, Sensores y Batería solo aparecen en los equipos que ofrecen esos datos.</translation>
    </message>
    <message>
        <source>Temperatures are not available on this Mac.</source>
        <translation>Las temperaturas no están disponibles en este equipo.</translation>
    </message>
    <message>
        <source>Only %@ free on the startup disk.</source>
        <translation>Solo quedan %@ libres en el disco del sistema.</translation>
    </message>
    <message>
        <source>Notifications are turned off for Vantrix. Enable them in System Settings → Notifications.</source>
        <translation>En este escritorio no responde ningún servicio de notificaciones, así que no se pueden mostrar avisos. Sirve cualquier demonio de notificaciones.</translation>
    </message>
    <message>
        <source>Menu Bar</source>
        <translation>Panel</translation>
    </message>
    <message>
        <source>Bars, rings and the menu bar turn orange and red above these values.</source>
        <translation>Por encima de estos valores, las barras, los anillos y el panel se vuelven naranjas y rojos.</translation>
    </message>
    <message>
        <source>Only the checked modules appear in the menu bar, in this order. With none selected, Vantrix shows just its icon.</source>
        <translation>En el panel solo aparecen los módulos marcados, en este orden. Si no hay ninguno, Vantrix muestra solo su icono.</translation>
    </message>
</context>
</TS>
