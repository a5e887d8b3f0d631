<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AccessibleColorButton</name>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>颜色</translation>
    </message>
</context>
<context>
    <name>AccessibleSquare</name>
    <message>
        <source>saturation %1 %, value %2 %, %3</source>
        <translation>饱和度 %1 %，明度 %2 %，%3</translation>
    </message>
</context>
<context>
    <name>ColorName</name>
    <message>
        <source>%1, alpha %2 %</source>
        <translation>%1，不透明度 %2 %</translation>
    </message>
</context>
<context>
    <name>GradientParts</name>
    <message>
        <source>Start color, %1</source>
        <translation>起始颜色，%1</translation>
    </message>
    <message>
        <source>End color, %1</source>
        <translation>结束颜色，%1</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>起点</translation>
    </message>
    <message>
        <source>End</source>
        <translation>终点</translation>
    </message>
</context>
<context>
    <name>TavikColorPicker</name>
    <message>
        <source>Saturation and value</source>
        <translation>饱和度和明度</translation>
    </message>
</context>
<context>
    <name>TavikColorPopup</name>
    <message>
        <source>Color Picker</source>
        <translation>颜色选择器</translation>
    </message>
    <message>
        <source>Hex</source>
        <translation>十六进制</translation>
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
        <translation>颜色</translation>
    </message>
    <message>
        <source>Pick a color from the screen</source>
        <translation>从屏幕取色</translation>
    </message>
</context>
<context>
    <name>TavikColorSilder</name>
    <message>
        <source>Hue</source>
        <translation>色相</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>不透明度</translation>
    </message>
</context>
<context>
    <name>TavikColorWell</name>
    <message>
        <source>Palette</source>
        <translation>调色板</translation>
    </message>
    <message>
        <source>Add the current color</source>
        <translation>添加当前颜色</translation>
    </message>
</context>
<context>
    <name>TavikExpandable</name>
    <message>
        <source>Open or close</source>
        <translation>展开或收起</translation>
    </message>
</context>
<context>
    <name>TavikGradientBar</name>
    <message>
        <source>Gradient</source>
        <translation>渐变</translation>
    </message>
</context>
</TS>
