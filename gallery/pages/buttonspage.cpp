#include "buttonspage.h"

#include "look.h"
#include "stategrid.h"

#include <QVBoxLayout>

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

/// A control with its caption beneath.
QWidget *captioned(QWidget *control, const QString &caption)
{
    auto *widget = new QWidget;
    auto *layout = new QVBoxLayout(widget);
    layout->setContentsMargins(0, 0, LenConverter::remToPx(Look::SmallGap), 0);
    layout->setSpacing(LenConverter::iniRemToPx(6));
    layout->addStretch();
    layout->addWidget(control, 0, Qt::AlignLeft);
    layout->addWidget(new TavikLabel(caption, TavikLabel::Assist));
    layout->addStretch();
    return widget;
}

/// A button that shows one of the three sets of drawings.
TavikButton *pictureButton(const QString &set)
{
    auto *button = new TavikButton(TavikButton::Flat);
    const QString path = QStringLiteral(":/Color/images/") + set;
    button->setIcon(IconTool::constructIcon(path, LenConverter::iniRemToPxSz(32, 32)));
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
    addOwnLook();
    addFontSize();
    addPictureButton();
    addCaption();
}

void ButtonsPage::addTypes()
{
    auto *grid =
        new StateGrid({State::Live, State::Hover, State::Pressed, State::Checked, State::Disabled});
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
        tr("The first column answers to the pointer; the others are held in their state. Toggle can "
           "be checked from the start, the others with setCheckable. Flat is made for icons."),
        grid,
        QStringLiteral("auto *save = new TavikButton(tr(\"Save\"), this);\n"
                       "auto *cancel = new TavikButton(tr(\"Cancel\"), TavikButton::Outline, this);\n"
                       "save->setRemSize(9, 2.667);"));
}

void ButtonsPage::addIconAndText()
{
    const QSizeF size(1.333, 1.333);
    addExample(Half, tr("Icon and text"), tr("The icon's size is in rem, so it grows with the text."),
               Look::row({sized(new TavikButton(icon("refresh"), size, tr("Reload"), TavikButton::Outline)),
                          sized(new TavikButton(icon("plus"), size, tr("Add"), TavikButton::Toggle)),
                          sized(new TavikButton(icon("gradient"), size, tr("Fill")))}),
               QStringLiteral("new TavikButton(QIcon(\":/Color/images/refresh.svg\"),\n"
                              "                QSizeF(1.333, 1.333), tr(\"Reload\"),\n"
                              "                TavikButton::Outline, this);"));
}

void ButtonsPage::addIconAlone()
{
    auto *scaled = sized(new TavikButton(icon("plus"), QSizeF(1.333, 1.333), TavikButton::Toggle), 4);
    auto *unscaled = sized(new TavikButton(icon("plus"), QSize(16, 16), TavikButton::Toggle), 4);
    addExample(Half, tr("Icon alone"),
               tr("A QSizeF is in rem. A QSize is in pixels and stays as it is on every screen."),
               Look::row({captioned(scaled, tr("1.333 rem")), captioned(unscaled, tr("16 pixels"))}),
               QStringLiteral("const QIcon plus(\":/Color/images/plus.svg\");\n"
                              "new TavikButton(plus, QSizeF(1.333, 1.333), type, this);\n"
                              "new TavikButton(plus, QSize(16, 16), type, this);"));
}

void ButtonsPage::addOwnLook()
{
    auto *blue = sized(new TavikButton(tr("Send")));
    blue->setBgColor(QStringLiteral("#108ee9"));
    blue->setHoverBgColor(QStringLiteral("#48aaee"));
    blue->setPressBgColor(QStringLiteral("#0f77c9"));
    blue->updateStyleSheet();
    auto *round = sized(new TavikButton(tr("Follow"), TavikButton::Outline));
    round->setBorderRadius(LenConverter::iniRemToStrPx(16));
    round->updateStyleSheet();
    addExample(Half, tr("A look of your own"),
               tr("The setters only store; updateStyleSheet shows all that was set. The pressed text "
                  "colour alone comes with the type."),
               Look::row({blue, round}),
               QStringLiteral("send->setBgColor(\"#108ee9\");\n"
                              "send->updateStyleSheet();\n"
                              "follow->setBorderRadius(\n"
                              "    LenConverter::iniRemToStrPx(16));\n"
                              "follow->updateStyleSheet();"));
}

void ButtonsPage::addFontSize()
{
    auto *small = sized(new TavikButton(tr("Small"), TavikButton::Outline));
    small->setFontRemSz(1);
    auto *usual = sized(new TavikButton(tr("Usual"), TavikButton::Outline));
    auto *large = sized(new TavikButton(tr("Large"), TavikButton::Outline));
    large->setFontRemSz(1.5);
    addExample(Half, tr("Font size"),
               tr("1.167 rem unless set. setFontRemSz follows the screen, setFontPxSz does not; both "
                  "restyle at once."),
               Look::row({small, usual, large}),
               QStringLiteral("small->setFontRemSz(1);\n"
                              "large->setFontRemSz(1.5);"));
}

void ButtonsPage::addPictureButton()
{
    auto *grid = new StateGrid({State::Live, State::Hover, State::Checked});
    for (const char *set : {"color", "gradient", "radial_gradient"}) {
        const QString name = QString::fromLatin1(set);
        grid->addRow(name, [name] { return pictureButton(name); });
    }
    addExample(Half, tr("Picture button"),
               tr("The button paints its icon over its whole area and nothing else: one drawing at rest, "
                  "one under the pointer, one when checked."),
               grid,
               QStringLiteral("button->setIcon(IconTool::constructIcon(\n"
                              "    \":/Color/images/gradient\", QSize(32, 32)));\n"
                              "button->setIsPaintOverrided(true);\n"
                              "button->setCheckable(true);"));
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
                              "pick->updateStyleSheet();\n"
                              "pick->setRemSize(12, 3.333);"));
}
