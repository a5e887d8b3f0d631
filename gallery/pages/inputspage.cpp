#include "inputspage.h"

#include "lineeditspecimens.h"
#include "look.h"
#include "sliderspecimens.h"
#include "spinboxspecimens.h"

#include <Tavik/TavikSeperateLine>

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
        LineEditSpecimens::types(),
        QStringLiteral("auto *width = new TavikLineEdit(\"0.00\", TavikLineEdit::TwoDecimals);\n"
                       "connect(width, &QLineEdit::editingFinished, this, [=] { "
                       "resize(width->text().toDouble()); });"));
    addExample(
        Whole, tr("Line edit: states"),
        tr("The first column is alive, the others are held in their state. The border is 2 pixels wide "
           "with the focus, otherwise 1."),
        LineEditSpecimens::states(),
        QStringLiteral("auto *name = new TavikLineEdit(tr(\"Name\"), this);\n"
                       "name->setRemSize(13, 2.667);\n"
                       "name->setReadOnly(true);"));
    addExample(
        Half, tr("Line edit: contents"),
        tr("setContent takes text and numbers and writes them in the form of the type. It asks no range."),
        LineEditSpecimens::contents(),
        QStringLiteral("width->setContent(2.5);    // 2.50\n"
                       "height->setContent(3);     // 3.0\n"
                       "count->setContent(\"abc\");  // 0"));
    addExample(Half, tr("Line edit: range and alignment"),
               tr("The range is for Integer: 300 can be typed here, but doesn't finish editing."),
               LineEditSpecimens::rangeAndAlignment(),
               QStringLiteral("auto *red = new TavikLineEdit(tr(\"Red\"), Qt::AlignCenter,\n"
                              "                              TavikLineEdit::Integer);\n"
                              "red->setIntRange(0, 255);"));
}

void InputsPage::addSpinBoxes()
{
    addExample(Half, tr("Spin boxes"),
               tr("For whole numbers and for two decimals. The wheel ends here: over a spin box it neither "
                  "steps nor scrolls the page."),
               SpinboxSpecimens::numbers(),
               QStringLiteral("new TavikSpinbox(1, 99, 1, this);\n"
                              "new TavikDoubleSpinbox(0.25, 4, 0.25, this);"));
    addExample(
        Half, tr("Spin box without buttons"),
        tr("The arrow keys still step. A font size of its own goes into the constructor, as setFontRemSz "
           "brings the buttons back."),
        SpinboxSpecimens::withoutButtons(),
        QStringLiteral("// range, step, parent, no buttons, font in rem\n"
                       "new TavikSpinbox(1, 500, 1, this, true, 1.0);"));
    addExample(
        Whole, tr("Spin boxes: states"),
        tr("The first column is alive, the others are held in their state: hovered and pressed at the "
           "upper step button."),
        SpinboxSpecimens::states(),
        QStringLiteral("copies->setRemSize(10, 2.667);\n"
                       "copies->setReadOnly(true);"));
}

void InputsPage::addSliders()
{
    addExample(
        Half, tr("Slider"),
        tr("A double as first length means rem for both, an int pixels. Groove and handle are pixels on "
           "every screen. The wheel neither moves it nor scrolls the page."),
        SliderSpecimens::sliders(),
        QStringLiteral("new TavikSlider(12.0, 3, this);   // rem\n"
                       "new TavikSlider(150, 24, this);   // pixels"));
    addExample(Half, tr("Dial"),
               tr("In the toolkit's look. The wheel neither turns it nor scrolls the page."),
               SliderSpecimens::dials(),
               QStringLiteral("auto *angle = new TavikDial(this);\n"
                              "angle->setRange(0, 359);\n"
                              "angle->setWrapping(true);"));
    addExample(
        Whole, tr("Slider and dial: states"),
        tr("The first column is alive, the others are held in their state. A disabled slider keeps its "
           "colours."),
        SliderSpecimens::states(), QStringLiteral("opacity->setEnabled(false);"));
}

void InputsPage::addRules()
{
    addExample(Half, tr("Rule, in rem"), tr("One pixel high; a double is its width in rem."),
               Look::captioned(new TavikSeperateLine(30.0), tr("30 rem")),
               QStringLiteral("new TavikSeperateLine(30.0, this);"));
    addExample(Half, tr("Rule, in pixels"), tr("An int is the width in pixels, the same on every screen."),
               Look::captioned(new TavikSeperateLine(240), tr("240 pixels")),
               QStringLiteral("new TavikSeperateLine(240, this);"));
}
