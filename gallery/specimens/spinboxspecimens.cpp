#include "spinboxspecimens.h"

#include "look.h"
#include "report.h"
#include "stategrid.h"

#include <Tavik/TavikDoubleSpinbox>
#include <Tavik/TavikSpinbox>

namespace {

template <class Value, class Spinbox>
QWidget *live(const QString &name, Spinbox *box)
{
    auto *report = new Report;
    report->follow(box, qOverload<Value>(&Spinbox::valueChanged),
        "valueChanged");
    return Look::live(name, box, report);
}

} // namespace

QWidget *SpinboxSpecimens::numbers()
{
    //! [numbers]
    auto *copies = new TavikSpinbox(1, 99);
    copies->setValue(12);
    copies->setRemSize(10, 2.667);
    auto *zoom = new TavikDoubleSpinbox(
        0.25, 4.0, 0.25); // and the step
    zoom->setValue(1.0);
    zoom->setRemSize(10, 2.667);
    //! [numbers]
    return Look::row({live<int>("TavikSpinbox", copies),
        live<double>("TavikDoubleSpinbox", zoom)});
}

QWidget *SpinboxSpecimens::withoutButtons()
{
    //! [withoutButtons]
    // range, step, parent, no buttons, font in rem
    auto *page = new TavikSpinbox(1, 500, 1, nullptr, true);
    auto *line = new TavikSpinbox(1, 500, 1, nullptr, true, 1.0);
    for (TavikSpinbox *box : {page, line}) {
        box->setValue(42);
        box->setRemSize(10, 2.667);
    }
    //! [withoutButtons]
    return Look::row({live<int>(tr("Ordinary font"), page),
        live<int>(tr("1 rem font"), line)});
}

QWidget *SpinboxSpecimens::states()
{
    using Specimen::State;
    auto *grid = new StateGrid({State::Rest, State::Hover,
        State::Pressed, State::ReadOnly, State::Disabled});
    grid->addRow(tr("Whole numbers"), [] {
        //! [states]
        auto *copies = new TavikSpinbox(0, 99);
        copies->setRemSize(10, 2.667);
        //! [states]
        return copies;
    });
    grid->addRow(tr("Without buttons"), [] {
        auto *page = new TavikSpinbox(1, 500, 1, nullptr, true);
        page->setRemSize(10, 2.667);
        return page;
    });
    grid->addRow(tr("Two decimals"), [] {
        //! [states]
        auto *zoom = new TavikDoubleSpinbox(0, 4, 0.25);
        zoom->setRemSize(10, 2.667);
        //! [states]
        return zoom;
    });
    return grid;
}
