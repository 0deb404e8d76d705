<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name></name>
    <!-- Texts that would be wrong on Linux: the source is the wording of the other tables -->
    <message>
        <source>GPU, Sensors and Battery only appear on Macs that report them.</source>
        <translation>GPU, Capteurs et Batterie n’apparaissent que sur les ordinateurs qui fournissent ces données.</translation>
    </message>
    <message>
        <source>Temperatures are not available on this Mac.</source>
        <translation>Les températures ne sont pas disponibles sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Only %@ free on the startup disk.</source>
        <translation>Plus que %@ libres sur le disque système.</translation>
    </message>
    <message>
        <source>Notifications are turned off for Vantrix. Enable them in System Settings → Notifications.</source>
        <translation>Aucun service de notification ne répond sur ce bureau : les alertes ne peuvent pas s’afficher. N’importe quel démon de notification convient.</translation>
    </message>
    <message>
        <source>Menu Bar</source>
        <translation>Tableau de bord</translation>
    </message>
    <message>
        <source>Bars, rings and the menu bar turn orange and red above these values.</source>
        <translation>Au-dessus de ces valeurs, les barres, les anneaux et le tableau de bord passent à l’orange puis au rouge.</translation>
    </message>
    <message>
        <source>Only the checked modules appear in the menu bar, in this order. With none selected, Vantrix shows just its icon.</source>
        <translation>Seuls les modules cochés apparaissent dans le tableau de bord, dans cet ordre. Si aucun n’est coché, Vantrix n’affiche que son icône.</translation>
    </message>
</context>
</TS>
