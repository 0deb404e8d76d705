<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
<context>
    <name></name>
    <!-- Texts that would be wrong on Linux: the source is the wording of the other tables -->
    <message>
        <source>GPU, Sensors and Battery only appear on Macs that report them.</source>
        <translation>GPU, Sensori e Batteria compaiono solo sui computer che ne forniscono i dati.</translation>
    </message>
    <message>
        <source>Temperatures are not available on this Mac.</source>
        <translation>Le temperature non sono disponibili su questo computer.</translation>
    </message>
    <message>
        <source>Only %@ free on the startup disk.</source>
        <translation>Solo %@ liberi sul disco di sistema.</translation>
    </message>
    <message>
        <source>Notifications are turned off for Vantrix. Enable them in System Settings → Notifications.</source>
        <translation>Su questo desktop non risponde alcun servizio di notifica, quindi gli avvisi non possono essere mostrati. Va bene qualsiasi demone di notifica.</translation>
    </message>
    <message>
        <source>Menu Bar</source>
        <translation>Pannello</translation>
    </message>
    <message>
        <source>Bars, rings and the menu bar turn orange and red above these values.</source>
        <translation>Sopra questi valori le barre, gli anelli e il pannello diventano arancioni e rossi.</translation>
    </message>
    <message>
        <source>Only the checked modules appear in the menu bar, in this order. With none selected, Vantrix shows just its icon.</source>
        <translation>Nel pannello compaiono solo i moduli selezionati, in quest’ordine. Se non ne selezioni nessuno, Vantrix mostra solo la sua icona.</translation>
    </message>
</context>
</TS>
