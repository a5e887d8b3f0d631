#include "buttonspage.h"

#include "look.h"
#include "stategrid.h"

#include <Tavik/IconTool>
#include <Tavik/LenConverter>
#include <Tavik/TavikButton>
#include <Tavik/TavikLabel>

using Specimen::State;

namespace {

QIcon icon(const char *name)
{
    return QIcon(QStringLiteral(":/Color/images/%1.svg").arg(QLatin1String(name)));
}

TavikButton *sized(TavikButton *button, double width = 9)
{
    button->setRemSize(width, 2.667);
    return button;
}

/// A button that shows one of the three sets of drawings.
TavikButton *pictureButton(const QString &set)
{
    auto *button = new TavikButton(TavikButton::Flat);
    const QString path = QStringLiteral(":/Color/images/") + set;
    button->setIcon(IconTool::constructIcon(path, QSize(32, 32)));
    button->setIsPaintOverrided(true);
    button->setCheckable(true);
    button->setRemSize(2.667, 2.667);
    return button;
}

} // namespace

ButtonsPage::ButtonsPage()
    : Page(tr("One push button in five types, with text, an icon or both, or as nothing but a picture."))
{
    addTypes();
    addIconAndText();
    addIconAlone();
    addColours();
    addCaption();
    addCorners();
    addFontSize();
    addPictureButton();
}

void ButtonsPage::addTypes()
{
    auto *grid =
        new StateGrid({State::Rest, State::Hover, State::Pressed, State::Checked, State::Disabled});
    const auto addRow = [grid](const QString &name, TavikButton::Type type) {
        grid->addRow(name, [type] { return sized(new TavikButton(tr("Save"), type)); });
    };
    addRow(QStringLiteral("Solid"), TavikButton::Solid);
    addRow(QStringLiteral("Outline"), TavikButton::Outline);
    addRow(QStringLiteral("Toggle"), TavikButton::Toggle);
    addRow(QStringLiteral("Link"), TavikButton::Link);
    grid->addRow(QStringLiteral("Flat"), [] {
        return sized(new TavikButton(icon("refresh"), QSizeF(1.5, 1.5), TavikButton::Flat));
    });
    addExample(
        Whole, tr("Types and states"),
        tr("The first column answers to the pointer, the others are held in their state. Toggle is "
           "checkable as it comes; Flat is made for icons."),
        grid,
        QStringLiteral("auto *save = new TavikButton(tr(\"Save\"), this);\n"
                       "auto *cancel = new TavikButton(tr(\"Cancel\"), TavikButton::Outline, this);\n"
                       "save->setRemSize(9, 2.667);"));
}

void ButtonsPage::addIconAndText()
{
    const QSizeF size(1.333, 1.333);
    const QLatin1Char blank(' ');
    addExample(
        Half, tr("Icon and text"), tr("The icon's size is in rem. A blank keeps the text off it."),
        Look::row(
            {sized(new TavikButton(icon("refresh"), size, blank + tr("Reload"), TavikButton::Outline)),
             sized(new TavikButton(icon("plus"), size, blank + tr("Add"), TavikButton::Toggle)),
             sized(new TavikButton(icon("gradient"), size, blank + tr("Fill")))}),
        QStringLiteral("new TavikButton(QIcon(\":/Color/images/refresh.svg\"),\n"
                       "                QSizeF(1.333, 1.333), \" \" + tr(\"Reload\"),\n"
                       "                TavikButton::Outline, this);"));
}

void ButtonsPage::addIconAlone()
{
    auto *scaled = sized(new TavikButton(icon("plus"), QSizeF(1.333, 1.333), TavikButton::Toggle), 4);
    auto *unscaled = sized(new TavikButton(icon("plus"), QSize(16, 16), TavikButton::Toggle), 4);
    addExample(
        Half, tr("Icon alone"),
        tr("A QSizeF is in rem. A QSize is in pixels and stays as it is on every screen."),
        Look::row({Look::captioned(scaled, tr("1.333 rem")), Look::captioned(unscaled, tr("16 pixels"))}),
        QStringLiteral("const QIcon plus(\":/Color/images/plus.svg\");\n"
                       "new TavikButton(plus, QSizeF(1.333, 1.333), type, this);\n"
                       "new TavikButton(plus, QSize(16, 16), type, this);"));
}

void ButtonsPage::addColours()
{
    auto *send = sized(new TavikButton(tr("Send")));
    send->setBgColor(QStringLiteral("#108ee9"));
    send->setHoverBgColor(QStringLiteral("#48aaee"));
    send->setPressBgColor(QStringLiteral("#0f77c9"));
    send->setBorderColor(QStringLiteral("#108ee9"));
    send->updateStyleSheet();
    addExample(Half, tr("Colours of your own"),
               tr("The setters only store; updateStyleSheet shows all that was set. The pressed text "
                  "colour alone comes with the type."),
               Look::row({send}),
               QStringLiteral("auto *send = new TavikButton(tr(\"Send\"), this);\n"
                              "send->setBgColor(\"#108ee9\");\n"
                              "send->setHoverBgColor(\"#48aaee\");\n"
                              "send->setPressBgColor(\"#0f77c9\");\n"
                              "send->setBorderColor(\"#108ee9\");\n"
                              "send->updateStyleSheet();"));
}

void ButtonsPage::addCorners()
{
    auto *round = sized(new TavikButton(tr("Round"), TavikButton::Outline));
    round->setBorderRadius(LenConverter::iniRemToStrPx(16));
    round->updateStyleSheet();
    auto *thick = sized(new TavikButton(tr("Thick"), TavikButton::Outline));
    thick->setBorderWidth(LenConverter::iniRemToStrPx(2));
    thick->updateStyleSheet();
    addExample(Half, tr("Corners and border"),
               tr("Both are pixels in text form, the same on every screen unless converted."),
               Look::row({round, thick}),
               QStringLiteral("round->setBorderRadius(LenConverter::iniRemToStrPx(16));\n"
                              "round->updateStyleSheet();\n"
                              "thick->setBorderWidth(LenConverter::iniRemToStrPx(2));\n"
                              "thick->updateStyleSheet();"));
}

void ButtonsPage::addFontSize()
{
    auto *small = sized(new TavikButton(tr("Small"), TavikButton::Outline));
    small->setFontRemSz(1);
    auto *large = sized(new TavikButton(tr("Large"), TavikButton::Outline));
    large->setFontRemSz(1.5);
    auto *fixed = sized(new TavikButton(tr("Fixed"), TavikButton::Outline));
    fixed->setFontPxSz(14);
    addExample(Half, tr("Font size"),
               tr("1.167 rem unless set. In rem it follows the screen, in pixels it does not."),
               Look::row({small, large, fixed}),
               QStringLiteral("small->setFontRemSz(1);\n"
                              "large->setFontRemSz(1.5);\n"
                              "fixed->setFontPxSz(14);"));
}

void ButtonsPage::addPictureButton()
{
    auto *grid =
        new StateGrid({State::Rest, State::Hover, State::Pressed, State::Checked, State::Disabled});
    for (const char *set : {"color", "gradient", "radial_gradient"}) {
        const QString name = QString::fromLatin1(set);
        grid->addRow(name, [name] { return pictureButton(name); });
    }
    addExample(Whole, tr("Picture button"),
               tr("The button paints its icon over its whole area and nothing else: one drawing at rest, "
                  "one under the pointer, one when checked."),
               grid,
               QStringLiteral(
                   "button->setIcon(IconTool::constructIcon(\":/Color/images/gradient\", QSize(32, 32)));\n"
                   "button->setIsPaintOverrided(true);\n"
                   "button->setCheckable(true);\n"
                   "button->setRemSize(2.667, 2.667);"));
}

void ButtonsPage::addCaption()
{
    const auto make = [](const char *picture, const QString &caption) {
        const QString path = QStringLiteral(":/Color/images/%1.svg").arg(QLatin1String(picture));
        auto *button = new TavikButton(path, QSize(20, 20), new TavikLabel(caption));
        button->initStyleProperties(TavikButton::Outline);
        button->setBorderColor(QStringLiteral("#d3d3d3"));
        button->updateStyleSheet();
        button->setRemSize(12, 3.333);
        return button;
    };
    addExample(Half, tr("Picture and caption"),
               tr("The button holds a picture and a label of yours. It has the toolkit's look until "
                  "updateStyleSheet, and wants a size."),
               Look::row({make("color_picker", tr("Pick a colour")), make("refresh", tr("Start over"))}),
               QStringLiteral("auto *pick = new TavikButton(\n"
                              "    \":/Color/images/color_picker.svg\", QSize(20, 20),\n"
                              "    new TavikLabel(tr(\"Pick a colour\")), this);\n"
                              "pick->initStyleProperties(TavikButton::Outline);\n"
                              "pick->setBorderColor(\"#d3d3d3\");\n"
                              "pick->updateStyleSheet();\n"
                              "pick->setRemSize(12, 3.333);"));
}
