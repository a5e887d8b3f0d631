<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AccessibleColorButton</name>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AccessibleSquare</name>
    <message>
        <source>saturation %1 %, value %2 %, %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ColorName</name>
    <message>
        <source>%1, alpha %2 %</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GradientParts</name>
    <message>
        <source>Start color, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End color, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TavikColorPicker</name>
    <message>
        <source>Saturation and value</source>
        <translation type="unfinished"></translation>
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
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TavikColorSilder</name>
    <message>
        <source>Hue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TavikColorWell</name>
    <message>
        <source>Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add the current color</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TavikExpandable</name>
    <message>
        <source>Open or close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TavikGradientBar</name>
    <message>
        <source>Gradient</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TavikSelfCheck</name>
    <message>
        <source>The SVG image format is missing: check marks, arrows and icons are not drawn. Install the toolkit&apos;s SVG plugin.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LenConverter::initRem() was not called: every length is 0 pixels.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The library&apos;s resources cannot be read: its pictures are not drawn.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no primary screen: lengths cannot be chosen, and popups cannot be placed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The platform gives no picture of the screen: the screen sampler finds no colors.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
