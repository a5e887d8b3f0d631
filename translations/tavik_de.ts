<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AccessibleColorButton</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
</context>
<context>
    <name>AccessibleSquare</name>
    <message>
        <source>saturation %1 %, value %2 %, %3</source>
        <translation>Sättigung %1 %, Hellwert %2 %, %3</translation>
    </message>
</context>
<context>
    <name>ColorName</name>
    <message>
        <source>%1, alpha %2 %</source>
        <translation>%1, Alpha %2 %</translation>
    </message>
</context>
<context>
    <name>GradientParts</name>
    <message>
        <source>Start color, %1</source>
        <translation>Anfangsfarbe, %1</translation>
    </message>
    <message>
        <source>End color, %1</source>
        <translation>Endfarbe, %1</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
</context>
<context>
    <name>TavikColorPicker</name>
    <message>
        <source>Saturation and value</source>
        <translation>Sättigung und Hellwert</translation>
    </message>
</context>
<context>
    <name>TavikColorPopup</name>
    <message>
        <source>Color Picker</source>
        <translation>Farbauswahl</translation>
    </message>
    <message>
        <source>Hex</source>
        <translation>Hex</translation>
    </message>
    <message>
        <source>R</source>
        <translation>R</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>C</source>
        <translation>C</translation>
    </message>
    <message>
        <source>M</source>
        <translation>M</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Pick a color from the screen</source>
        <translation>Farbe vom Bildschirm aufnehmen</translation>
    </message>
</context>
<context>
    <name>TavikColorSilder</name>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>Alpha</translation>
    </message>
</context>
<context>
    <name>TavikColorWell</name>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Add the current color</source>
        <translation>Aktuelle Farbe hinzufügen</translation>
    </message>
</context>
<context>
    <name>TavikExpandable</name>
    <message>
        <source>Open or close</source>
        <translation>Öffnen oder schließen</translation>
    </message>
</context>
<context>
    <name>TavikGradientBar</name>
    <message>
        <source>Gradient</source>
        <translation>Verlauf</translation>
    </message>
</context>
</TS>
