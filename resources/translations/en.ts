<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name></name>
    <!-- Only what its source does not say itself: the plural forms -->
    <message numerus="yes">
        <source>%lld cores</source>
        <translation><numerusform>%lld core</numerusform><numerusform>%lld cores</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%lld seconds</source>
        <translation><numerusform>%lld second</numerusform><numerusform>%lld seconds</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%lld bytes</source>
        <translation><numerusform>%lld byte</numerusform><numerusform>%lld bytes</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%lld bits</source>
        <translation><numerusform>%lld bit</numerusform><numerusform>%lld bits</numerusform></translation>
    </message>
</context>
</TS>
