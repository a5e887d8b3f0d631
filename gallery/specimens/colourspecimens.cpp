#include "colourspecimens.h"

#include "look.h"
#include "pages/signallog.h"
#include "report.h"
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
    //! [buttonStates]
    auto *fill = new TavikColorButton(color);
    fill->setRemSize(6, 2.667);
    //! [buttonStates]
    return fill;
}

TavikColorButton *loggedButton(
    const QString &name, const QColor &color, SignalLog *log)
{
    TavikColorButton *button = colorButton(color);
    QObject::connect(button, &TavikColorButton::showPopup, log,
        [=](const QPoint &, const QColor &asked) {
            log->tell(
                name, "showPopup", asked.name(QColor::HexArgb));
        });
    log->follow(button, &TavikColorButton::colorChanged, name,
        "colorChanged");
    return button;
}

TavikGradientBar *loggedBar(const QString &name, SignalLog *log)
{
    auto *bar = new TavikGradientBar(20.0, 2.667);
    bar->setStartColor(QColor(0x08, 0xa2, 0x74));
    bar->setEndColor(QColor(0x10, 0x8e, 0xe9, 0x40));
    QObject::connect(bar, &TavikGradientBar::colorPopupRequest,
        log, [=](const QPoint &, const QColor &asked) {
            log->tell(name, "colorPopupRequest",
                asked.name(QColor::HexArgb));
        });
    log->follow(bar, &TavikGradientBar::selectedStartColor, name,
        "selectedStartColor");
    log->follow(bar, &TavikGradientBar::selectedEndColor, name,
        "selectedEndColor");
    return bar;
}

/// The text of a report for a signal that carries a colour.
template <class Sender, class Emitter, class Value>
Report *colorReport(Sender *sender,
    void (Emitter::*signal)(Value), const QString &name)
{
    auto *report = new Report(18);
    QObject::connect(
        sender, signal, report, [=](const QColor &color) {
            report->tell(name, color.name(QColor::HexArgb));
        });
    return report;
}

QWidget *liveSlider(
    const QString &name, TavikColorSilder *slider)
{
    auto *report = new Report(12);
    report->follow(
        slider, &QAbstractSlider::valueChanged, "valueChanged");
    return Look::live(name, slider, report);
}

} // namespace

QWidget *ColourSpecimens::wired()
{
    auto *window = new QWidget;
    auto *log = new SignalLog;
    TavikColorButton *fill = loggedButton(
        tr("Fill"), QColor(0x08, 0xa2, 0x74), log);
    TavikColorButton *line = loggedButton(
        tr("Line"), QColor(0x40, 0x40, 0x40), log);
    TavikColorButton *glow = loggedButton(
        tr("Glow"), QColor(0xf3, 0x98, 0x0f, 0x80), log);
    TavikGradientBar *gradient = loggedBar(tr("Gradient"), log);
    //! [wired]
    auto *wiring = new TavikColorWiring(window);
    wiring->serve(fill);
    wiring->serve(line);
    wiring->serve(glow);
    wiring->serve(gradient);
    //! [wired]
    const QString popup = tr("Popup");
    log->follow(wiring->popup(), &TavikColorPopup::colorChanged,
        popup, "colorChanged");
    QObject::connect(wiring->popup(),
        &TavikColorPopup::colorPopupHide, log,
        [=] { log->tell(popup, "colorPopupHide", QString()); });

    auto *layout = new QVBoxLayout(window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(LenConverter::remToPx(Look::SmallGap));
    layout->addWidget(
        Look::row({Look::captioned(fill, tr("Fill")),
            Look::captioned(line, tr("Line")),
            Look::captioned(glow, tr("Glow")),
            Look::captioned(gradient, tr("Gradient"))}));
    layout->addWidget(log);
    return window;
}

QWidget *ColourSpecimens::popup()
{
    // A popup window can't stand in a page: this is a picture of one.
    auto *window = new QLabel;
    const QPoint pos(0, -2000);
    //! [popup]
    auto *popup = new TavikColorPopup(window);
    popup->showColorPopup(pos, QColor("#08a274"));
    //! [popup]
    window->setPixmap(popup->grab());
    delete popup;
    return Look::row({window});
}

QWidget *ColourSpecimens::buttonStates()
{
    using Specimen::State;
    auto *grid = new StateGrid({State::Rest, State::Hover,
        State::Pressed, State::Disabled});
    grid->addRow(tr("Opaque"),
        [] { return colorButton(QColor(0x08, 0xa2, 0x74)); });
    grid->addRow(tr("With alpha"), [] {
        return colorButton(QColor(0x08, 0xa2, 0x74, 0x80));
    });
    grid->addRow(tr("Transparent"),
        [] { return colorButton(Qt::transparent); });
    return grid;
}

QWidget *ColourSpecimens::gradientBar()
{
    //! [gradientBar]
    auto *bar = new TavikGradientBar(24.0, 2.0); // rem
    bar->setStartColor(Qt::white);
    bar->setEndColor(Qt::black);
    //! [gradientBar]
    Report *start = colorReport(bar,
        &TavikGradientBar::selectedStartColor,
        "selectedStartColor");
    Report *end = colorReport(bar,
        &TavikGradientBar::selectedEndColor, "selectedEndColor");
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
    //! [square]
    auto *square = new TavikColorPicker;
    square->setCurrentHue(160 / 360.0);
    square->setCurrentColor(QColor::fromHsv(160, 200, 160));
    //! [square]
    return Look::live(tr("Hue 160"), square,
        colorReport(square, &TavikColorPicker::colorChanged,
            "colorChanged"));
}

QWidget *ColourSpecimens::sliders()
{
    //! [sliders]
    auto *hue = new TavikColorSilder;
    auto *alpha = new TavikColorSilder(
        hue->width(), hue->height(), TavikColorSilder::Alpha);
    auto *heat = new TavikColorSilder;
    heat->setRange(0, 100);
    heat->setFirstColor(QColor("#f7c016"));
    heat->setLastColor(QColor("#b60e2e"));
    //! [sliders]
    auto *column = new QWidget;
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(LenConverter::remToPx(Look::SmallGap));
    layout->addWidget(liveSlider(tr("Hue"), hue));
    layout->addWidget(liveSlider(tr("Alpha"), alpha));
    layout->addWidget(
        liveSlider(tr("Colours of your own"), heat));
    layout->addStretch();
    return column;
}

QWidget *ColourSpecimens::palette()
{
    //! [palette]
    auto *palette = new TavikColorWell(186, 43); // pixels
    palette->addColor(QColor("#8008a274"));      // alpha first
    //! [palette]
    auto *report = colorReport(palette,
        &TavikColorWell::colorSelected, "colorSelected");
    QObject::connect(palette, &TavikColorWell::addColorRequested,
        report, [=] { report->tell("addColorRequested"); });
    return Look::live(
        tr("A colour was added in front"), palette, report);
}
