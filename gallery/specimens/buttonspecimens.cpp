#include "buttonspecimens.h"

#include "look.h"
#include "stategrid.h"

#include <Tavik/IconTool>
#include <Tavik/LenConverter>
#include <Tavik/TavikButton>
#include <Tavik/TavikLabel>

using Specimen::State;

namespace {

const QVector<State> states{State::Rest, State::Hover,
    State::Pressed, State::Checked, State::Disabled};

} // namespace

QWidget *ButtonSpecimens::types()
{
    auto *grid = new StateGrid(states);
    const auto addRow = [grid](const QString &name,
                            TavikButton::Type type) {
        grid->addRow(name, [type] {
            //! [types]
            // Solid, Outline, Toggle or Link
            auto *save = new TavikButton(tr("Save"), type);
            save->setRemSize(9, 2.667);
            //! [types]
            return save;
        });
    };
    addRow("Solid", TavikButton::Solid);
    addRow("Outline", TavikButton::Outline);
    addRow("Toggle", TavikButton::Toggle);
    addRow("Link", TavikButton::Link);
    grid->addRow("Flat", [] {
        //! [types]
        const QIcon refresh(":/Color/images/refresh.svg");
        auto *again = new TavikButton(
            refresh, QSizeF(1.5, 1.5), TavikButton::Flat);
        again->setRemSize(9, 2.667);
        //! [types]
        return again;
    });
    return grid;
}

QWidget *ButtonSpecimens::iconAndText()
{
    const QIcon plus(":/Color/images/plus.svg");
    const QIcon gradient(":/Color/images/gradient.svg");
    //! [iconAndText]
    const QSizeF size(1.333, 1.333); // rem
    auto *reload = new TavikButton(
        QIcon(":/Color/images/refresh.svg"), size,
        " " + tr("Reload"), TavikButton::Outline);
    reload->setRemSize(9, 2.667);
    //! [iconAndText]
    auto *add = new TavikButton(
        plus, size, " " + tr("Add"), TavikButton::Toggle);
    add->setRemSize(9, 2.667);
    auto *fill = new TavikButton(
        gradient, size, " " + tr("Fill"));
    fill->setRemSize(9, 2.667);
    return Look::row({reload, add, fill});
}

QWidget *ButtonSpecimens::iconAlone()
{
    //! [iconAlone]
    const QIcon plus(":/Color/images/plus.svg");
    auto *scaled = new TavikButton(
        plus, QSizeF(1.333, 1.333), TavikButton::Toggle);
    auto *unscaled = new TavikButton(
        plus, QSize(16, 16), TavikButton::Toggle);
    scaled->setRemSize(4, 2.667);
    unscaled->setRemSize(4, 2.667);
    //! [iconAlone]
    return Look::row({Look::captioned(scaled, tr("1.333 rem")),
        Look::captioned(unscaled, tr("16 pixels"))});
}

QWidget *ButtonSpecimens::colours()
{
    //! [colours]
    auto *send = new TavikButton(tr("Send"));
    send->setRemSize(9, 2.667);
    send->setBgColor("#108ee9");
    send->setHoverBgColor("#48aaee");
    send->setPressBgColor("#0f77c9");
    send->setBorderColor("#108ee9");
    send->updateStyleSheet();
    //! [colours]
    return Look::row({send});
}

QWidget *ButtonSpecimens::corners()
{
    auto *round = new TavikButton(
        tr("Round"), TavikButton::Outline);
    round->setRemSize(9, 2.667);
    auto *thick = new TavikButton(
        tr("Thick"), TavikButton::Outline);
    thick->setRemSize(9, 2.667);
    //! [corners]
    round->setBorderRadius(LenConverter::iniRemToStrPx(16));
    round->updateStyleSheet();
    thick->setBorderWidth(LenConverter::iniRemToStrPx(2));
    thick->updateStyleSheet();
    //! [corners]
    return Look::row({round, thick});
}

QWidget *ButtonSpecimens::fontSizes()
{
    auto *small = new TavikButton(
        tr("Small"), TavikButton::Outline);
    auto *large = new TavikButton(
        tr("Large"), TavikButton::Outline);
    auto *fixed = new TavikButton(
        tr("Fixed"), TavikButton::Outline);
    //! [fontSizes]
    small->setFontRemSz(1);
    large->setFontRemSz(1.5);
    fixed->setFontPxSz(14);
    for (TavikButton *button : {small, large, fixed})
        button->setRemSize(9, 2.667);
    //! [fontSizes]
    return Look::row({small, large, fixed});
}

QWidget *ButtonSpecimens::pictures()
{
    auto *grid = new StateGrid(states);
    for (const QString set :
        {"color", "gradient", "radial_gradient"}) {
        grid->addRow(set, [set] {
            //! [pictures]
            // "color", "gradient" or "radial_gradient"
            const QString path = ":/Color/images/" + set;
            auto *fill = new TavikButton(TavikButton::Flat);
            fill->setIcon(
                IconTool::constructIcon(path, QSize(32, 32)));
            fill->setIsPaintOverrided(true);
            fill->setCheckable(true);
            fill->setRemSize(2.667, 2.667);
            //! [pictures]
            return fill;
        });
    }
    return grid;
}

QWidget *ButtonSpecimens::caption()
{
    const auto make = [](const QString &path,
                          const QString &caption) {
        //! [caption]
        // ":/Color/images/color_picker.svg", tr("Pick a colour")
        auto *pick = new TavikButton(
            path, QSize(20, 20), new TavikLabel(caption));
        pick->initStyleProperties(TavikButton::Outline);
        pick->setBorderColor("#d3d3d3");
        pick->updateStyleSheet();
        pick->setRemSize(12, 3.333);
        //! [caption]
        return pick;
    };
    return Look::row({make(":/Color/images/color_picker.svg",
                          tr("Pick a colour")),
        make(":/Color/images/refresh.svg", tr("Start over"))});
}
