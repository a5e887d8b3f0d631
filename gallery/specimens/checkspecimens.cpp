#include "checkspecimens.h"

#include "look.h"
#include "report.h"
#include "stategrid.h"

#include <QButtonGroup>

#include <Tavik/TavikCheckBox>
#include <Tavik/TavikRadioButton>

namespace {

QWidget *live(const QString &name, QAbstractButton *button)
{
    auto *report = new Report;
    report->follow(button, &QAbstractButton::toggled, "toggled");
    return Look::live(name, button, report);
}

template <class Button>
Button *resized(Button *button, double font, double indicator)
{
    button->setFontRemSz(font);
    button->setIndicatorSz(indicator);
    button->updateStyleSheet();
    return button;
}

} // namespace

QWidget *CheckSpecimens::checkBoxes()
{
    //! [checkBoxes]
    auto *grid = new TavikCheckBox(tr("Show the grid"));
    auto *layers = new TavikCheckBox(tr("All layers"));
    layers->setTristate(true);
    layers->setCheckState(Qt::PartiallyChecked);
    //! [checkBoxes]
    auto *report = new Report;
    report->follow(
        layers, &QCheckBox::stateChanged, "stateChanged");
    return Look::row({live(tr("Two states"), grid),
        Look::live(tr("Three states"), layers, report)});
}

QWidget *CheckSpecimens::radioButtons()
{
    //! [radioButtons]
    auto *paper = new TavikRadioButton(tr("Paper"));
    auto *screen = new TavikRadioButton(tr("Screen"));
    paper->setChecked(true);
    auto *group = new QButtonGroup(paper);
    group->addButton(paper);
    group->addButton(screen);
    //! [radioButtons]
    return Look::row(
        {live(tr("First"), paper), live(tr("Second"), screen)});
}

QWidget *CheckSpecimens::sizes()
{
    //! [sizes]
    auto *large = new TavikCheckBox(tr("Large"));
    large->setFontRemSz(1.5);
    large->setIndicatorSz(2); // rem too
    large->updateStyleSheet();
    auto *green = new TavikCheckBox(tr("Green text"));
    green->setFontColor("#08a274");
    green->updateStyleSheet();
    //! [sizes]
    return Look::row({live(tr("1.5 and 2 rem"),
                          resized(new TavikCheckBox(tr("Large")),
                              1.5, 2)),
        live(tr("1.5 and 2 rem"),
            resized(new TavikRadioButton(tr("Large")), 1.5, 2)),
        live(tr("1 and 1 rem"),
            resized(new TavikCheckBox(tr("Small")), 1, 1)),
        live(tr("Colour"), green)});
}

QWidget *CheckSpecimens::states()
{
    using Specimen::State;
    auto *grid = new StateGrid({State::Rest, State::Hover,
        State::Pressed, State::Checked, State::Disabled});
    grid->addRow("TavikCheckBox", [] {
        //! [states]
        auto *box = new TavikCheckBox(tr("Show the grid"));
        //! [states]
        return box;
    });
    grid->addRow("TavikRadioButton", [] {
        //! [states]
        auto *paper = new TavikRadioButton(tr("Paper"));
        paper->setAutoExclusive(false);
        //! [states]
        return paper;
    });
    return grid;
}
