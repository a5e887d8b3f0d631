#include "sliderspecimens.h"

#include "look.h"
#include "report.h"
#include "stategrid.h"

#include <Tavik/LenConverter>
#include <Tavik/TavikDial>
#include <Tavik/TavikSlider>

namespace {

QWidget *live(const QString &name, QAbstractSlider *slider, int value)
{
    slider->setValue(value);
    auto *report = new Report;
    report->follow(slider, &QAbstractSlider::valueChanged, QStringLiteral("valueChanged"));
    return Look::live(name, slider, report);
}

TavikDial *dial(double rem)
{
    auto *dial = new TavikDial;
    dial->setFixedSize(LenConverter::remToPx(rem), LenConverter::remToPx(rem));
    return dial;
}

QWidget *inTheMiddle(QAbstractSlider *slider)
{
    slider->setRange(0, 100);
    slider->setValue(50);
    return slider;
}

} // namespace

QWidget *SliderSpecimens::sliders()
{
    return Look::row({live(tr("12 by 3 rem"), new TavikSlider(12.0, 3), 40),
                      live(tr("150 by 24 pixels"), new TavikSlider(150, 24), 40)});
}

QWidget *SliderSpecimens::dials()
{
    auto *angle = dial(6);
    angle->setRange(0, 359);
    angle->setWrapping(true);
    auto *volume = dial(6);
    volume->setRange(0, 10);
    volume->setNotchesVisible(true);
    return Look::row(
        {live(tr("0 to 359, all round"), angle, 90), live(tr("0 to 10, with notches"), volume, 4)});
}

QWidget *SliderSpecimens::states()
{
    using Specimen::State;
    auto *grid = new StateGrid({State::Rest, State::Hover, State::Pressed, State::Disabled});
    grid->addRow(QStringLiteral("TavikSlider"), [] { return inTheMiddle(new TavikSlider(14.0, 3)); });
    grid->addRow(QStringLiteral("TavikDial"), [] { return inTheMiddle(dial(5)); });
    return grid;
}
