#include "colourspage.h"

#include "specimens/colourspecimens.h"

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
        ColourSpecimens::wired(), {"colourspecimens", "wired"});
}

void ColoursPage::addPopup()
{
    addExample(
        Half, tr("Popup"),
        tr("Square, sliders, fields and palette show one colour. The pipette takes a colour from anywhere "
           "on the screen."),
        ColourSpecimens::popup(), {"colourspecimens", "popup"});
}

void ColoursPage::addParts()
{
    addExample(Half, tr("Sliders"),
               tr("Over hue, over alpha, or over colours of your own, the first one set first."),
               ColourSpecimens::sliders(), {"colourspecimens", "sliders"});
    addExample(Half, tr("Square"), tr("Saturation from left to right, value from bottom to top."),
               ColourSpecimens::square(), {"colourspecimens", "square"});
    addExample(
        Half, tr("Palette"),
        tr("Fifteen colours and a button that asks for one more. Its cells are pixels on every screen."),
        ColourSpecimens::palette(), {"colourspecimens", "palette"});
}

void ColoursPage::addButton()
{
    addExample(
        Whole, tr("Colour button: states"),
        tr("The first column is alive, the others are held in their state. A click asks for a popup."),
        ColourSpecimens::buttonStates(), {"colourspecimens", "buttonStates"});
}

void ColoursPage::addBar()
{
    addExample(Whole, tr("Gradient bar"),
               tr("The squares ask for a popup, the handles choose a colour between both ends."),
               ColourSpecimens::gradientBar(), {"colourspecimens", "gradientBar"});
}
