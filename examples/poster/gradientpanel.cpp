#include "gradientpanel.h"

#include "gradienttext.h"
#include "look.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QSignalBlocker>

#include <Tavik/LenConverter>
#include <Tavik/TavikButton>
#include <Tavik/TavikCheckBox>
#include <Tavik/TavikDial>
#include <Tavik/TavikGradientBar>
#include <Tavik/TavikLineEdit>
#include <Tavik/TavikSeperateLine>
#include <Tavik/TavikSlider>
#include <Tavik/TavikSpinbox>

namespace {

/// A dial points down at 0 and a gradient of 0 degrees runs upwards; both turn clockwise.
int turned(int angle)
{
    return (angle + 180) % 360;
}

} // namespace

GradientPanel::GradientPanel(Poster *poster, QWidget *parent)
    : Panel(tr("Gradient"), poster, parent)
    , m_shown(new TavikCheckBox(tr("Over the picture")))
    , m_bar(new TavikGradientBar(RemRowWidth, 2.4))
    , m_dial(new TavikDial)
    , m_angle(new TavikSpinbox(0, 359))
    , m_slider(new TavikSlider(17.0, 3))
    , m_opacity(new TavikSpinbox(0, 100))
    , m_styleSheet(new TavikLineEdit)
    , m_css(new TavikLineEdit)
{
    buildRows();
    connectControls();
    finish(true);
}

void GradientPanel::buildRows()
{
    m_bar->setToolTip(tr("The squares choose colours, the handles where the gradient begins and ends"));
    m_dial->setRange(0, 359);
    m_dial->setWrapping(true);
    m_dial->setFixedSize(LenConverter::iniRemToPxSz(60, 60));
    m_angle->setWrapping(true);
    m_angle->setSuffix(QStringLiteral("\u00b0"));
    m_angle->setRemSize(7, Look::FieldHeight);
    m_slider->setRange(0, 100);
    m_opacity->setSuffix(QStringLiteral(" %"));
    m_opacity->setRemSize(7, Look::FieldHeight);

    addRow(tr("Show"), {m_shown});
    addRow(tr("Colours"), {m_bar});
    addRow(tr("Direction"), {m_dial, m_angle});
    addRow(tr("Opacity"), {m_slider, m_opacity});
    addWide(new TavikSeperateLine(RemWidth - 3.0));
    addText(tr("Style sheet"), m_styleSheet);
    addText(tr("CSS"), m_css);
}

void GradientPanel::addText(const QString &name, TavikLineEdit *field)
{
    field->setReadOnly(true);
    field->setRemSize(18, Look::FieldHeight);
    TavikButton *copy = Look::button(tr("Copy"), 6);
    connect(copy, &QPushButton::clicked, field,
            [field] { QGuiApplication::clipboard()->setText(field->text()); });
    addRow(name, {field, copy});
}

void GradientPanel::connectControls()
{
    connect(m_shown, &QCheckBox::toggled, this, [this](bool isShown) {
        poster()->edit(tr("gradient"), [=](PosterSettings &s) { s.hasGradient = isShown; });
    });
    // What the bar's signals carry is the colour under a handle; we want the colours of its ends.
    const auto readBar = [this] {
        editColor(tr("gradient colours"), [this](PosterSettings &s) {
            s.startColor = m_bar->startColor();
            s.endColor = m_bar->endColor();
            s.startValue = m_bar->startValue();
            s.endValue = m_bar->endValue();
        });
    };
    connect(m_bar, &TavikGradientBar::selectedStartColor, this, readBar);
    connect(m_bar, &TavikGradientBar::selectedEndColor, this, readBar);
    const auto setAngle = [this](int angle) {
        poster()->edit(tr("direction"), [=](PosterSettings &s) { s.angle = angle; });
    };
    connect(m_dial, &QDial::valueChanged, this, [=](int value) { setAngle(turned(value)); });
    connect(m_angle, qOverload<int>(&QSpinBox::valueChanged), this, setAngle);
    const auto setOpacity = [this](int opacity) {
        poster()->edit(tr("opacity"), [=](PosterSettings &s) { s.opacity = opacity; });
    };
    connect(m_slider, &QSlider::valueChanged, this, setOpacity);
    connect(m_opacity, qOverload<int>(&QSpinBox::valueChanged), this, setOpacity);
}

void GradientPanel::follow(const PosterSettings &settings)
{
    const QSignalBlocker blockers[] = {QSignalBlocker(m_shown),  QSignalBlocker(m_bar),
                                       QSignalBlocker(m_dial),   QSignalBlocker(m_angle),
                                       QSignalBlocker(m_slider), QSignalBlocker(m_opacity)};
    m_shown->setChecked(settings.hasGradient);
    m_bar->setStartValue(settings.startValue);
    m_bar->setEndValue(settings.endValue);
    m_bar->setStartColor(settings.startColor); // repaints, and so moves the handles too
    m_bar->setEndColor(settings.endColor);
    m_dial->setValue(turned(settings.angle));
    m_angle->setValue(settings.angle);
    m_slider->setValue(settings.opacity);
    m_opacity->setValue(settings.opacity);
    for (const auto &[field, text] : {std::pair(m_styleSheet, GradientText::styleSheet(settings)),
                                      std::pair(m_css, GradientText::css(settings))}) {
        field->setText(text);
        field->setCursorPosition(0);
    }
}
