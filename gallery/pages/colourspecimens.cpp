#include "colourspecimens.h"

#include "look.h"
#include "report.h"
#include "signallog.h"
#include "stategrid.h"

#include <QLabel>
#include <QVBoxLayout>

#include <Tavik/LenConverter>
#include <Tavik/TavikColorButton>
#include <Tavik/TavikColorPicker>
#include <Tavik/TavikColorPopup>
#include <Tavik/TavikColorSilder>
#include <Tavik/TavikColorWell>
#include <Tavik/TavikColorWiring>
#include <Tavik/TavikGradientBar>

namespace {

TavikColorButton *colorButton(const QColor &color)
{
    auto *button = new TavikColorButton(color);
    button->setRemSize(6, 2.667);
    return button;
}

QWidget *wiredButton(const QString &name, const QColor &color, TavikColorWiring *wiring, SignalLog *log)
{
    TavikColorButton *button = colorButton(color);
    QObject::connect(button, &TavikColorButton::showPopup, log, [=](const QPoint &, const QColor &asked) {
        log->tell(name, QStringLiteral("showPopup"), asked.name(QColor::HexArgb));
    });
    log->follow(button, &TavikColorButton::colorChanged, name, QStringLiteral("colorChanged"));
    wiring->serve(button);
    return Look::captioned(button, name);
}

QWidget *wiredBar(const QString &name, TavikColorWiring *wiring, SignalLog *log)
{
    auto *bar = new TavikGradientBar(20.0, 2.667);
    bar->setStartColor(QColor(0x08, 0xa2, 0x74));
    bar->setEndColor(QColor(0x10, 0x8e, 0xe9, 0x40));
    QObject::connect(bar, &TavikGradientBar::colorPopupRequest, log,
                     [=](const QPoint &, const QColor &asked) {
                         log->tell(name, QStringLiteral("colorPopupRequest"), asked.name(QColor::HexArgb));
                     });
    log->follow(bar, &TavikGradientBar::selectedStartColor, name, QStringLiteral("selectedStartColor"));
    log->follow(bar, &TavikGradientBar::selectedEndColor, name, QStringLiteral("selectedEndColor"));
    wiring->serve(bar);
    return Look::captioned(bar, name);
}

/// The text of a report for a signal that carries a colour.
template <class Sender, class Emitter, class Value>
Report *colorReport(Sender *sender, void (Emitter::*signal)(Value), const QString &name)
{
    auto *report = new Report(18);
    QObject::connect(sender, signal, report,
                     [=](const QColor &color) { report->tell(name, color.name(QColor::HexArgb)); });
    return report;
}

QWidget *liveSlider(const QString &name, TavikColorSilder *slider)
{
    auto *report = new Report(12);
    report->follow(slider, &QAbstractSlider::valueChanged, QStringLiteral("valueChanged"));
    return Look::live(name, slider, report);
}

TavikColorSilder *colorSlider(TavikColorSilder::Type type)
{
    return new TavikColorSilder(LenConverter::iniRemToPx(166), LenConverter::iniRemToPx(16), type);
}

} // namespace

QWidget *ColourSpecimens::wired()
{
    auto *column = new QWidget;
    auto *log = new SignalLog;
    auto *wiring = new TavikColorWiring(column);
    const QString popupName = tr("Popup");
    log->follow(wiring->popup(), &TavikColorPopup::colorChanged, popupName, QStringLiteral("colorChanged"));
    QObject::connect(wiring->popup(), &TavikColorPopup::colorPopupHide, log,
                     [=] { log->tell(popupName, QStringLiteral("colorPopupHide"), QString()); });

    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(LenConverter::remToPx(Look::SmallGap));
    layout->addWidget(Look::row({wiredButton(tr("Fill"), QColor(0x08, 0xa2, 0x74), wiring, log),
                                 wiredButton(tr("Line"), QColor(0x40, 0x40, 0x40), wiring, log),
                                 wiredButton(tr("Glow"), QColor(0xf3, 0x98, 0x0f, 0x80), wiring, log),
                                 wiredBar(tr("Gradient"), wiring, log)}));
    layout->addWidget(log);
    return column;
}

QWidget *ColourSpecimens::popup()
{
    // A popup window can't stand in a page: this is a picture of one.
    TavikColorPopup popup;
    popup.showColorPopup(QPoint(0, -2000), QColor(0x08, 0xa2, 0x74));
    auto *picture = new QLabel;
    picture->setPixmap(popup.grab());
    return Look::row({picture});
}

QWidget *ColourSpecimens::buttonStates()
{
    using Specimen::State;
    auto *grid = new StateGrid({State::Rest, State::Hover, State::Pressed, State::Disabled});
    grid->addRow(tr("Opaque"), [] { return colorButton(QColor(0x08, 0xa2, 0x74)); });
    grid->addRow(tr("With alpha"), [] { return colorButton(QColor(0x08, 0xa2, 0x74, 0x80)); });
    grid->addRow(tr("Transparent"), [] { return colorButton(Qt::transparent); });
    return grid;
}

QWidget *ColourSpecimens::gradientBar()
{
    auto *bar = new TavikGradientBar(24.0, 2.0);
    Report *start =
        colorReport(bar, &TavikGradientBar::selectedStartColor, QStringLiteral("selectedStartColor"));
    Report *end = colorReport(bar, &TavikGradientBar::selectedEndColor, QStringLiteral("selectedEndColor"));
    auto *reports = new QWidget;
    auto *layout = new QVBoxLayout(reports);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(start);
    layout->addWidget(end);
    return Look::live(tr("White to black"), bar, reports);
}

QWidget *ColourSpecimens::square()
{
    auto *square = new TavikColorPicker;
    square->setCurrentHue(160 / 360.0);
    square->setCurrentColor(QColor::fromHsv(160, 200, 160));
    return Look::live(tr("Hue 160"), square,
                      colorReport(square, &TavikColorPicker::colorChanged, QStringLiteral("colorChanged")));
}

QWidget *ColourSpecimens::sliders()
{
    auto *own = colorSlider(TavikColorSilder::Hue);
    own->setRange(0, 100);
    own->setFirstColor(QColor(0xf7, 0xc0, 0x16));
    own->setLastColor(QColor(0xb6, 0x0e, 0x2e));
    auto *column = new QWidget;
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(LenConverter::remToPx(Look::SmallGap));
    layout->addWidget(liveSlider(tr("Hue"), colorSlider(TavikColorSilder::Hue)));
    layout->addWidget(liveSlider(tr("Alpha"), colorSlider(TavikColorSilder::Alpha)));
    layout->addWidget(liveSlider(tr("Colours of your own"), own));
    layout->addStretch();
    return column;
}

QWidget *ColourSpecimens::palette()
{
    auto *well = new TavikColorWell(186, 43); // its cells are pixels at every rem
    well->addColor(QColor(0x08, 0xa2, 0x74, 0x80));
    auto *report = colorReport(well, &TavikColorWell::colorSelected, QStringLiteral("colorSelected"));
    QObject::connect(well, &TavikColorWell::addColorRequested, report,
                     [=] { report->tell(QStringLiteral("addColorRequested")); });
    return Look::live(tr("A colour was added in front"), well, report);
}
