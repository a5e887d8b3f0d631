#include "choicespage.h"

#include "specimens/checkspecimens.h"
#include "specimens/combospecimens.h"
#include "specimens/groupspecimens.h"

ChoicesPage::ChoicesPage()
    : Page(tr(
          "What offers a choice. Under each control stands the last signal that it sent, with its value."))
{
    addBars();
    addGroupsOfOtherKinds();
    addBoxesAndRadioButtons();
    addComboBoxes();
}

void ChoicesPage::addBars()
{
    addExample(
        Half, tr("Group: segmented bar"),
        tr("Without spacing, text buttons share their borders. Ids count from 0 in the order of adding."),
        GroupSpecimens::bar(), {"groupspecimens", "bar"});
    addExample(
        Half, tr("Group: uncheckable"),
        tr("A second click leaves nothing checked. Only that is reported, by -1: the clicks that check a "
           "button report nothing."),
        GroupSpecimens::uncheckable(), {"groupspecimens", "uncheckable"});
    addExample(Half, tr("Group: each for itself"), tr("Every click reports its button, checked or not."),
               GroupSpecimens::nonExclusive(), {"groupspecimens", "nonExclusive"});
    addExample(Half, tr("Group: pictures"),
               tr("A path stands for three drawings: at rest, under the pointer, checked. An icon size "
                  "goes first."),
               GroupSpecimens::pictures(), {"groupspecimens", "pictures"});
}

void ChoicesPage::addGroupsOfOtherKinds()
{
    addExample(Half, tr("Group: column"),
               tr("Touching buttons of a column lose their left border too: choose a spacing."),
               GroupSpecimens::columns(), {"groupspecimens", "columns"});
    addExample(Half, tr("Group: radio buttons"),
               tr("These are radio buttons in the toolkit's look and size."),
               GroupSpecimens::radioButtons(), {"groupspecimens", "radioButtons"});
}

void ChoicesPage::addBoxesAndRadioButtons()
{
    addExample(Half, tr("Check box"),
               tr("With three states, the middle one has no picture of its own and looks as the toolkit "
                  "draws it."),
               CheckSpecimens::checkBoxes(), {"checkspecimens", "checkBoxes"});
    addExample(Half, tr("Radio button"),
               tr("Radio buttons of one parent exclude each other; elsewhere a QButtonGroup sees to it."),
               CheckSpecimens::radioButtons(), {"checkspecimens", "radioButtons"});
    addExample(
        Whole, tr("Check box and radio button: states"),
        tr("The first column is alive, the others are held in their state. Disabled ones look as enabled "
           "ones do."),
        CheckSpecimens::states(), {"checkspecimens", "states"});
    addExample(
        Whole, tr("Check box and radio button: sizes and colour"),
        tr("Font and indicator are in rem. The setters only store; updateStyleSheet shows all that was "
           "set. Only check boxes have a colour."),
        CheckSpecimens::sizes(), {"checkspecimens", "sizes"});
}

void ChoicesPage::addComboBoxes()
{
    addExample(
        Half, tr("Combo box"),
        tr("To choose alone, or with a field to type into: Return then adds the text to the list. The "
           "wheel changes the choice."),
        ComboSpecimens::types(), {"combospecimens", "types"});
    addExample(
        Half, tr("Font families"),
        tr("All families of the system. Names complete while they are typed, in upper or lower case."),
        ComboSpecimens::fontFamilies(), {"combospecimens", "fontFamilies"});
    addExample(
        Whole, tr("Combo box: states"),
        tr("The first column is alive, the others are held in their state. The look's least width and "
           "height overrule a size set before polishing: when it stands where it belongs, polish it and "
           "then set its size."),
        ComboSpecimens::states(), {"combospecimens", "states"});
}
