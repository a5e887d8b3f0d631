#include "sliderspecimens.h"

#include "look.h"
#include "report.h"
#include "stategrid.h"

#include <Tavik/LenConverter>
#include <Tavik/TavikDial>
#include <Tavik/TavikSlider>

namespace {

QWidget *live(const QString &name, QAbstractSlider *slider)
{
    auto *report = new Report;
    report->follow(
        slider, &QAbstractSlider::valueChanged, "valueChanged");
    return Look::live(name, slider, report);
}

} // namespace

QWidget *SliderSpecimens::sliders()
{
    //! [sliders]
    auto *scaled = new TavikSlider(12.0, 3);   // rem
    auto *unscaled = new TavikSlider(150, 24); // pixels
    scaled->setValue(40);
    unscaled->setValue(40);
    //! [sliders]
    return Look::row({live(tr("12 by 3 rem"), scaled),
        live(tr("150 by 24 pixels"), unscaled)});
}

QWidget *SliderSpecimens::dials()
{
    //! [dials]
    const int side = LenConverter::remToPx(6);
    auto *angle = new TavikDial;
    angle->setFixedSize(side, side);
    angle->setRange(0, 359);
    angle->setWrapping(true);
    angle->setValue(90);
    //! [dials]
    auto *volume = new TavikDial;
    volume->setFixedSize(side, side);
    volume->setRange(0, 10);
    volume->setNotchesVisible(true);
    volume->setValue(4);
    return Look::row({live(tr("0 to 359, all round"), angle),
        live(tr("0 to 10, with notches"), volume)});
}

QWidget *SliderSpecimens::states()
{
    using Specimen::State;
    auto *grid = new StateGrid({State::Rest, State::Hover,
        State::Pressed, State::Disabled});
    grid->addRow("TavikSlider", [] {
        //! [states]
        auto *opacity = new TavikSlider(14.0, 3);
        opacity->setRange(0, 100);
        opacity->setValue(50);
        //! [states]
        return opacity;
    });
    grid->addRow("TavikDial", [] {
        const int side = LenConverter::remToPx(5);
        //! [states]
        auto *volume = new TavikDial;
        volume->setRange(0, 100);
        volume->setValue(50);
        //! [states]
        volume->setFixedSize(side, side);
        return volume;
    });
    return grid;
}
