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
    report->follow(button, &QAbstractButton::toggled, QStringLiteral("toggled"));
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
    auto *partial = new TavikCheckBox(tr("All layers"));
    partial->setTristate(true);
    partial->setCheckState(Qt::PartiallyChecked);
    auto *report = new Report;
    report->follow(partial, &QCheckBox::stateChanged, QStringLiteral("stateChanged"));
    return Look::row({live(tr("Two states"), new TavikCheckBox(tr("Show the grid"))),
                      Look::live(tr("Three states"), partial, report)});
}

QWidget *CheckSpecimens::radioButtons()
{
    auto *paper = new TavikRadioButton(tr("Paper"));
    paper->setChecked(true);
    QWidget *row =
        Look::row({live(tr("First"), paper), live(tr("Second"), new TavikRadioButton(tr("Screen")))});
    // Each stands in a column of its own here, and radio buttons of one parent only exclude each other.
    auto *group = new QButtonGroup(row);
    const QList<TavikRadioButton *> buttons = row->findChildren<TavikRadioButton *>();
    for (TavikRadioButton *button : buttons)
        group->addButton(button);
    return row;
}

QWidget *CheckSpecimens::sizes()
{
    auto *green = new TavikCheckBox(tr("Green text"));
    green->setFontColor(Look::Accent.name());
    green->updateStyleSheet();
    return Look::row({live(tr("1.5 and 2 rem"), resized(new TavikCheckBox(tr("Large")), 1.5, 2)),
                      live(tr("1.5 and 2 rem"), resized(new TavikRadioButton(tr("Large")), 1.5, 2)),
                      live(tr("1 and 1 rem"), resized(new TavikCheckBox(tr("Small")), 1, 1)),
                      live(tr("Colour"), green)});
}

QWidget *CheckSpecimens::states()
{
    using Specimen::State;
    auto *grid =
        new StateGrid({State::Rest, State::Hover, State::Pressed, State::Checked, State::Disabled});
    grid->addRow(QStringLiteral("TavikCheckBox"), [] { return new TavikCheckBox(tr("Show the grid")); });
    grid->addRow(QStringLiteral("TavikRadioButton"), [] {
        auto *button = new TavikRadioButton(tr("Paper"));
        // Here each stands for itself.
        button->setAutoExclusive(false);
        return button;
    });
    return grid;
}
