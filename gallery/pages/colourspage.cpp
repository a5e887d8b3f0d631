#include "colourspage.h"

#include "colourspecimens.h"

ColoursPage::ColoursPage()
    : Page(tr("What shows a colour, and what changes it. One popup serves all controls of an application."))
{
    addWiring();
    addPopup();
    addParts();
    addButton();
    addBar();
}

void ColoursPage::addWiring()
{
    addExample(
        Whole, tr("One popup for all"),
        tr("Each control only asks for a popup. The answer goes to the one that asked last; below stands "
           "what all of them emit."),
        ColourSpecimens::wired(),
        QStringLiteral("auto *wiring = new TavikColorWiring(this);\n"
                       "wiring->serve(fill);\n"
                       "wiring->serve(line);\n"
                       "wiring->serve(glow);\n"
                       "wiring->serve(gradient);"));
}

void ColoursPage::addPopup()
{
    addExample(
        Half, tr("Popup"),
        tr("Square, sliders, fields and palette show one colour. The pipette takes a colour from anywhere "
           "on the screen."),
        ColourSpecimens::popup(),
        QStringLiteral("auto *popup = new TavikColorPopup(this);\n"
                       "popup->showColorPopup(mapToGlobal(pos), color);"));
}

void ColoursPage::addParts()
{
    addExample(Half, tr("Sliders"),
               tr("Over hue, over alpha, or over colours of your own, the first one set first."),
               ColourSpecimens::sliders(),
               QStringLiteral("auto *heat = new TavikColorSilder(this);\n"
                              "heat->setFirstColor(yellow);\n"
                              "heat->setLastColor(red);"));
    addExample(Half, tr("Square"), tr("Saturation from left to right, value from bottom to top."),
               ColourSpecimens::square(),
               QStringLiteral("auto *square = new TavikColorPicker(this);\n"
                              "square->setCurrentHue(160 / 360.0);"));
    addExample(
        Half, tr("Palette"),
        tr("Fifteen colours and a button that asks for one more. Its cells are pixels on every screen."),
        ColourSpecimens::palette(),
        QStringLiteral("auto *palette = new TavikColorWell(186, 43, this);\n"
                       "palette->addColor(color);"));
}

void ColoursPage::addButton()
{
    addExample(
        Whole, tr("Colour button: states"),
        tr("The first column is alive, the others are held in their state. A click asks for a popup."),
        ColourSpecimens::buttonStates(),
        QStringLiteral("auto *fill = new TavikColorButton(QColor(\"#08a274\"), this);\n"
                       "fill->setRemSize(6, 2.667);"));
}

void ColoursPage::addBar()
{
    addExample(Whole, tr("Gradient bar"),
               tr("The squares ask for a popup, the handles choose a colour between both ends."),
               ColourSpecimens::gradientBar(),
               QStringLiteral("auto *bar = new TavikGradientBar(24.0, 2.0, this);   // rem\n"
                              "bar->setEndColor(color);"));
}
