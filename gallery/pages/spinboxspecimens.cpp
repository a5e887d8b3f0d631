#include "spinboxspecimens.h"

#include "look.h"
#include "report.h"
#include "stategrid.h"

#include <Tavik/TavikDoubleSpinbox>
#include <Tavik/TavikSpinbox>

namespace {

template <class Spinbox>
Spinbox *sized(Spinbox *box)
{
    box->setRemSize(10, 2.667);
    return box;
}

template <class Value, class Spinbox>
QWidget *live(const QString &name, Spinbox *box, Value value)
{
    box->setValue(value);
    auto *report = new Report;
    report->follow(box, qOverload<Value>(&Spinbox::valueChanged), QStringLiteral("valueChanged"));
    return Look::live(name, sized(box), report);
}

TavikSpinbox *bare(double fontRemSz = 0.0)
{
    return new TavikSpinbox(1, 500, 1, nullptr, true, fontRemSz);
}

} // namespace

QWidget *SpinboxSpecimens::numbers()
{
    return Look::row(
        {live(QStringLiteral("TavikSpinbox"), new TavikSpinbox(1, 99), 12),
         live(QStringLiteral("TavikDoubleSpinbox"), new TavikDoubleSpinbox(0.25, 4.0, 0.25), 1.0)});
}

QWidget *SpinboxSpecimens::withoutButtons()
{
    return Look::row({live(tr("Ordinary font"), bare(), 42), live(tr("1 rem font"), bare(1.0), 42)});
}

QWidget *SpinboxSpecimens::states()
{
    using Specimen::State;
    auto *grid =
        new StateGrid({State::Rest, State::Hover, State::Pressed, State::ReadOnly, State::Disabled});
    grid->addRow(tr("Whole numbers"), [] { return sized(new TavikSpinbox(0, 99)); });
    grid->addRow(tr("Without buttons"), [] { return sized(bare()); });
    grid->addRow(tr("Two decimals"), [] { return sized(new TavikDoubleSpinbox(0, 4, 0.25)); });
    return grid;
}
