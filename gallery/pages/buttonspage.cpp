#include "buttonspage.h"

#include "specimens/buttonspecimens.h"

ButtonsPage::ButtonsPage()
    : Page(tr("One push button in five types, with text, an icon or both, or as nothing but a picture."))
{
    addExample(Whole, tr("Types and states"),
               tr("The first column answers to the pointer, the others are held in their state. Toggle is "
                  "checkable as it comes; Flat is made for icons."),
               ButtonSpecimens::types(), {"buttonspecimens", "types"});
    addIcons();
    addLooks();
    addExample(Whole, tr("Picture button"),
               tr("The button paints its icon over its whole area and nothing else: one drawing at rest, "
                  "one under the pointer, one when checked."),
               ButtonSpecimens::pictures(), {"buttonspecimens", "pictures"});
}

void ButtonsPage::addIcons()
{
    addExample(Half, tr("Icon and text"), tr("The icon's size is in rem. A blank keeps the text off it."),
               ButtonSpecimens::iconAndText(), {"buttonspecimens", "iconAndText"});
    addExample(Half, tr("Icon alone"),
               tr("A QSizeF is in rem. A QSize is in pixels and stays as it is on every screen."),
               ButtonSpecimens::iconAlone(), {"buttonspecimens", "iconAlone"});
}

void ButtonsPage::addLooks()
{
    addExample(Half, tr("Colours of your own"),
               tr("The setters only store; updateStyleSheet shows all that was set. The pressed text "
                  "colour alone comes with the type."),
               ButtonSpecimens::colours(), {"buttonspecimens", "colours"});
    addExample(Half, tr("Picture and caption"),
               tr("The button holds a picture and a label of yours. It has the toolkit's look until "
                  "updateStyleSheet, and wants a size."),
               ButtonSpecimens::caption(), {"buttonspecimens", "caption"});
    addExample(Half, tr("Corners and border"),
               tr("Both are pixels in text form, the same on every screen unless converted."),
               ButtonSpecimens::corners(), {"buttonspecimens", "corners"});
    addExample(Half, tr("Font size"),
               tr("1.167 rem unless set. In rem it follows the screen, in pixels it does not."),
               ButtonSpecimens::fontSizes(), {"buttonspecimens", "fontSizes"});
}
