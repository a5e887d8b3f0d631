<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>AccessibleColorButton</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
</context>
<context>
    <name>AccessibleSquare</name>
    <message>
        <source>saturation %1 %, value %2 %, %3</source>
        <translation>saturation %1 %, valeur %2 %, %3</translation>
    </message>
</context>
<context>
    <name>ColorName</name>
    <message>
        <source>%1, alpha %2 %</source>
        <translation>%1, alpha %2 %</translation>
    </message>
</context>
<context>
    <name>GradientParts</name>
    <message>
        <source>Start color, %1</source>
        <translation>Couleur de début, %1</translation>
    </message>
    <message>
        <source>End color, %1</source>
        <translation>Couleur de fin, %1</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
</context>
<context>
    <name>TavikColorPicker</name>
    <message>
        <source>Saturation and value</source>
        <translation>Saturation et valeur</translation>
    </message>
</context>
<context>
    <name>TavikColorPopup</name>
    <message>
        <source>Color Picker</source>
        <translation>Sélecteur de couleur</translation>
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
        <translation>V</translation>
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
        <translation>J</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Pick a color from the screen</source>
        <translation>Prélever une couleur à l’écran</translation>
    </message>
</context>
<context>
    <name>TavikColorSilder</name>
    <message>
        <source>Hue</source>
        <translation>Teinte</translation>
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
        <translation>Ajouter la couleur actuelle</translation>
    </message>
</context>
<context>
    <name>TavikExpandable</name>
    <message>
        <source>Open or close</source>
        <translation>Ouvrir ou fermer</translation>
    </message>
</context>
<context>
    <name>TavikGradientBar</name>
    <message>
        <source>Gradient</source>
        <translation>Dégradé</translation>
    </message>
</context>
</TS>
