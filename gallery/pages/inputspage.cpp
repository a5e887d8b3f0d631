#include "inputspage.h"

#include "specimens/lineeditspecimens.h"
#include "specimens/rulespecimens.h"
#include "specimens/sliderspecimens.h"
#include "specimens/spinboxspecimens.h"

InputsPage::InputsPage()
    : Page(
          tr("What takes a value. Under each control stands the last signal that it sent, with its value."))
{
    addLineEdits();
    addSpinBoxes();
    addSliders();
    addRules();
}

void InputsPage::addLineEdits()
{
    addExample(
        Whole, tr("Line edit: six types"),
        tr("The type decides what can be typed. Return or leaving the field finishes editing: the types "
           "with decimals then rewrite their text, 1.5 as 1.50, and a text that is no value yet reports "
           "nothing."),
        LineEditSpecimens::types(), {"lineeditspecimens", "types"});
    addExample(
        Whole, tr("Line edit: states"),
        tr("The first column is alive, the others are held in their state. The border is 2 pixels wide "
           "with the focus, otherwise 1."),
        LineEditSpecimens::states(), {"lineeditspecimens", "states"});
    addExample(
        Half, tr("Line edit: contents"),
        tr("setContent takes text and numbers and writes them in the form of the type. It asks no range."),
        LineEditSpecimens::contents(), {"lineeditspecimens", "contents"});
    addExample(Half, tr("Line edit: range and alignment"),
               tr("The range is for Integer: 300 can be typed here, but doesn't finish editing."),
               LineEditSpecimens::rangeAndAlignment(), {"lineeditspecimens", "rangeAndAlignment"});
}

void InputsPage::addSpinBoxes()
{
    addExample(Half, tr("Spin boxes"),
               tr("For whole numbers and for two decimals. The wheel ends here: over a spin box it neither "
                  "steps nor scrolls the page."),
               SpinboxSpecimens::numbers(), {"spinboxspecimens", "numbers"});
    addExample(
        Half, tr("Spin box without buttons"),
        tr("The arrow keys still step. A font size of its own goes into the constructor, as setFontRemSz "
           "brings the buttons back."),
        SpinboxSpecimens::withoutButtons(), {"spinboxspecimens", "withoutButtons"});
    addExample(
        Whole, tr("Spin boxes: states"),
        tr("The first column is alive, the others are held in their state: hovered and pressed at the "
           "upper step button."),
        SpinboxSpecimens::states(), {"spinboxspecimens", "states"});
}

void InputsPage::addSliders()
{
    addExample(
        Half, tr("Slider"),
        tr("A double as first length means rem for both, an int pixels. Groove and handle are pixels on "
           "every screen. The wheel neither moves it nor scrolls the page."),
        SliderSpecimens::sliders(), {"sliderspecimens", "sliders"});
    addExample(Half, tr("Dial"),
               tr("In the toolkit's look. The wheel neither turns it nor scrolls the page."),
               SliderSpecimens::dials(), {"sliderspecimens", "dials"});
    addExample(
        Whole, tr("Slider and dial: states"),
        tr("The first column is alive, the others are held in their state. A disabled slider keeps its "
           "colours."),
        SliderSpecimens::states(), {"sliderspecimens", "states"});
}

void InputsPage::addRules()
{
    addExample(Half, tr("Rule, in rem"), tr("One pixel high; a double is its width in rem."),
               RuleSpecimens::inRem(), {"rulespecimens", "inRem"});
    addExample(Half, tr("Rule, in pixels"), tr("An int is the width in pixels, the same on every screen."),
               RuleSpecimens::inPixels(), {"rulespecimens", "inPixels"});
}
