#include "choicespage.h"

#include "checkspecimens.h"
#include "combospecimens.h"
#include "groupspecimens.h"

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
        GroupSpecimens::bar(),
        QStringLiteral("auto *align = new TavikButtonGroup(\n"
                       "    Horizontal, 1.167, QSizeF(8, 2.667));\n"
                       "align->addTextButton(tr(\"Left\"));\n"
                       "align->setCheckedId(0);"));
    addExample(
        Half, tr("Group: uncheckable"),
        tr("A second click leaves nothing checked. Only that is reported, by -1: the clicks that check a "
           "button report nothing."),
        GroupSpecimens::uncheckable(),
        QStringLiteral("priority->setIsUncheckable(true);\n"
                       "connect(priority, &TavikButtonGroup::buttonClicked,\n"
                       "        this, &Task::forgetPriority);"));
    addExample(Half, tr("Group: each for itself"), tr("Every click reports its button, checked or not."),
               GroupSpecimens::nonExclusive(),
               QStringLiteral("auto *style = new TavikButtonGroup(\n"
                              "    Horizontal, 1.167, QSizeF(8, 2.667),\n"
                              "    TavikButtonGroup::NonExclusive, 0.5, this);"));
    addExample(Half, tr("Group: pictures"),
               tr("A path stands for three drawings: at rest, under the pointer, checked. An icon size "
                  "goes first."),
               GroupSpecimens::pictures(),
               QStringLiteral("fill->setIconRemSz(QSizeF(2.667, 2.667));\n"
                              "fill->addIconButton(\":/Color/images/gradient\")\n"
                              "    ->setIsPaintOverrided(true);"));
}

void ChoicesPage::addGroupsOfOtherKinds()
{
    addExample(Half, tr("Group: column"),
               tr("Touching buttons of a column lose their left border too: choose a spacing."),
               GroupSpecimens::columns(),
               QStringLiteral("new TavikButtonGroup(Vertical, 1.167, QSizeF(8, 2.667),\n"
                              "                     TavikButtonGroup::Exclusive, 0.5);"));
    addExample(Half, tr("Group: radio buttons"),
               tr("These are radio buttons in the toolkit's look and size."),
               GroupSpecimens::radioButtons(),
               QStringLiteral("auto *backup = new TavikButtonGroup(Vertical, this);\n"
                              "backup->addRadioButton(tr(\"Always\"));\n"
                              "backup->addRadioButton(tr(\"Never\"));"));
}

void ChoicesPage::addBoxesAndRadioButtons()
{
    addExample(Half, tr("Check box"),
               tr("With three states, the middle one has no picture of its own and looks as the toolkit "
                  "draws it."),
               CheckSpecimens::checkBoxes(),
               QStringLiteral("auto *grid = new TavikCheckBox(tr(\"Grid\"), this);\n"
                              "connect(grid, &QCheckBox::toggled,\n"
                              "        view, &View::setGridVisible);"));
    addExample(Half, tr("Radio button"),
               tr("Radio buttons of one parent exclude each other; elsewhere a QButtonGroup sees to it."),
               CheckSpecimens::radioButtons(),
               QStringLiteral("auto *paper = new TavikRadioButton(tr(\"Paper\"), this);\n"
                              "new TavikRadioButton(tr(\"Screen\"), this);\n"
                              "paper->setChecked(true);"));
    addExample(
        Whole, tr("Check box and radio button: states"),
        tr("The first column is alive, the others are held in their state. Disabled ones look as enabled "
           "ones do."),
        CheckSpecimens::states(), QStringLiteral("grid->setEnabled(false);"));
    addExample(
        Whole, tr("Check box and radio button: sizes and colour"),
        tr("Font and indicator are in rem. The setters only store; updateStyleSheet shows all that was "
           "set. Only check boxes have a colour."),
        CheckSpecimens::sizes(),
        QStringLiteral("box->setFontRemSz(1.5);\n"
                       "box->setIndicatorSz(2);\n"
                       "box->updateStyleSheet();"));
}

void ChoicesPage::addComboBoxes()
{
    addExample(
        Half, tr("Combo box"),
        tr("To choose alone, or with a field to type into: Return then adds the text to the list. The "
           "wheel changes the choice."),
        ComboSpecimens::types(),
        QStringLiteral("auto *unit = new TavikComboBox(this);\n"
                       "new TavikComboBox(TavikComboBox::Editable, this);\n"
                       "unit->addItems({tr(\"Pixels\"), tr(\"Inches\")});"));
    addExample(
        Half, tr("Font families"),
        tr("All families of the system. Names complete while they are typed, in upper or lower case."),
        ComboSpecimens::fontFamilies(),
        QStringLiteral("auto *family = new TavikFontFamilyComboBox(this);\n"
                       "connect(family, &QComboBox::currentTextChanged,\n"
                       "        sample, &Sample::setFamily);"));
    addExample(
        Whole, tr("Combo box: states"),
        tr("The first column is alive, the others are held in their state. The look's least width and "
           "height overrule a size set before polishing: when it stands where it belongs, polish it and "
           "then set its size."),
        ComboSpecimens::states(),
        QStringLiteral("unit->ensurePolished();\n"
                       "unit->setRemSize(12, 2.667);"));
}
