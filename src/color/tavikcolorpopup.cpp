#include "color/tavikcolorpopup.h"

#include "color/popupcontrols_p.h"
#include "color/popupoutline_p.h"
#include "color/popupplacement_p.h"
#include "color/popupshadow_p.h"
#include "color/sampling_p.h"
#include "color/screenshot_p.h"
#include "foundation/lenconverter.h"

#include <QPainter>
#include <QVBoxLayout>

TavikColorPopup::TavikColorPopup(const QColor &color, QWidget *parent)
    : QWidget(parent)
    , m_mainLayout(new QVBoxLayout)
    , m_controls(std::make_unique<PopupControls>())
    , m_outline(std::make_unique<PopupOutline>())
    , m_currentColor(color)
    , m_sampling(std::make_unique<Sampling>())
{
    buildWindow();
    m_controls->build(m_mainLayout);
    connectControls();
}

TavikColorPopup::TavikColorPopup(QWidget *parent)
    : TavikColorPopup(Qt::white, parent)
{
}

TavikColorPopup::~TavikColorPopup()
{
    // An open one closes only when it is no popup any more, and a field that loses the focus then may tell of a change.
    const QList<QWidget *> controls = findChildren<QWidget *>();
    for (const QWidget *control : controls)
        control->disconnect(this);
    m_sampling->stop(); // while there still is a popup that it may hide
}

QColor TavikColorPopup::currentColor() const
{
    return m_currentColor;
}

void TavikColorPopup::buildWindow()
{
    setAccessibleName(tr("Color Picker"));
    setWindowFlags(Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    setAttribute(Qt::WA_TranslucentBackground, true);
    constexpr int margin = PopupOutline::shadowRadius;
    setFixedSize(LenConverter::iniRemToPxSz(208 + 2 * margin, 388 + 2 * margin));
    setGraphicsEffect(new PopupShadow(this, margin));
    m_mainLayout->setSpacing(0);
    m_mainLayout->setContentsMargins(0, margin + PopupOutline::arrowHeight, 0, margin);
    m_mainLayout->setAlignment(Qt::AlignHCenter);
    setLayout(m_mainLayout);
}

void TavikColorPopup::connectControls()
{
    connect(m_controls->hue, &QAbstractSlider::valueChanged, this, &TavikColorPopup::onHueChanged);
    connect(m_controls->alpha, &QAbstractSlider::valueChanged, this, &TavikColorPopup::onAlphaChanged);
    connect(m_controls->square, &TavikColorPicker::colorChanged, this, &TavikColorPopup::onSatValChanged);
    connect(m_controls->fields.hex, &QLineEdit::textChanged, this, &TavikColorPopup::onHexEditChanged);
    connect(m_controls->fields.red, &QLineEdit::textChanged, this, &TavikColorPopup::onREditChanged);
    connect(m_controls->fields.green, &QLineEdit::textChanged, this, &TavikColorPopup::onGEditChanged);
    connect(m_controls->fields.blue, &QLineEdit::textChanged, this, &TavikColorPopup::onBEditChanged);
    connect(m_controls->fields.alpha, &QLineEdit::textChanged, this, &TavikColorPopup::onAEditChanged);
    connect(m_controls->fields.cyan, &QLineEdit::textChanged, this, &TavikColorPopup::onCEditChanged);
    connect(m_controls->fields.magenta, &QLineEdit::textChanged, this, &TavikColorPopup::onMEditChanged);
    connect(m_controls->fields.yellow, &QLineEdit::textChanged, this, &TavikColorPopup::onYEditChanged);
    connect(m_controls->palette, &TavikColorWell::colorSelected, this,
            &TavikColorPopup::onColorWellSelected);
    connect(m_controls->palette, &TavikColorWell::addColorRequested, this,
            &TavikColorPopup::onAddColorWellRequested);
    connect(m_controls->pipette, &QAbstractButton::clicked, this, &TavikColorPopup::onClickPickColor);
}

// ---- One colour everywhere ----

void TavikColorPopup::setCurrentColor(const QColor &currentColor)
{
    m_currentColor = currentColor;
    m_controls->showInSquareAndSliders(m_currentColor);
    m_controls->fields.writeAll(m_currentColor);
}

/// Makes the colour anew from what square and sliders hold.
void TavikColorPopup::takeFromControls()
{
    m_controls->takeFromSquareAndSliders(&m_currentColor);
    Q_EMIT colorChanged(m_currentColor);
    m_controls->fields.writeAll(m_currentColor);
}

void TavikColorPopup::onHueChanged(int value)
{
    m_controls->square->setCurrentHue(value / 360.0);
    takeFromControls();
}

void TavikColorPopup::onAlphaChanged(int)
{
    takeFromControls();
}

void TavikColorPopup::onSatValChanged()
{
    takeFromControls();
}

void TavikColorPopup::onHexEditChanged()
{
    QColor color(QLatin1Char('#') + m_controls->fields.hex->text());
    color.setAlpha(m_currentColor.alpha()); // these digits have no say in it
    m_currentColor = color;
    m_controls->fields.writeRgbAndCmy(m_currentColor);
    m_controls->showInSquareAndSliders(m_currentColor);
    Q_EMIT colorChanged(m_currentColor);
}

void TavikColorPopup::onREditChanged()
{
    followChannel(&QColor::setRed, m_controls->fields.red, m_controls->fields.cyan);
}

void TavikColorPopup::onGEditChanged()
{
    followChannel(&QColor::setGreen, m_controls->fields.green, m_controls->fields.magenta);
}

void TavikColorPopup::onBEditChanged()
{
    followChannel(&QColor::setBlue, m_controls->fields.blue, m_controls->fields.yellow);
}

void TavikColorPopup::onAEditChanged()
{
    m_currentColor.setAlpha(ColorFields::number(m_controls->fields.alpha));
    followField();
}

/// The partner's slot runs too: it writes the plain number back.
void TavikColorPopup::followChannel(void (QColor::*set)(int), const TavikLineEdit *typed,
                                    TavikLineEdit *partner)
{
    (m_currentColor.*set)(ColorFields::number(typed));
    ColorFields::setComplement(partner, typed);
    followField();
}

void TavikColorPopup::followField()
{
    m_controls->fields.writeHex(m_currentColor);
    m_controls->showInSquareAndSliders(m_currentColor);
    Q_EMIT colorChanged(m_currentColor);
}

/// C, M and Y become a colour by way of R, G and B, whose slots then run.
void TavikColorPopup::onCEditChanged()
{
    ColorFields::setComplement(m_controls->fields.red, m_controls->fields.cyan);
}

void TavikColorPopup::onMEditChanged()
{
    ColorFields::setComplement(m_controls->fields.green, m_controls->fields.magenta);
}

void TavikColorPopup::onYEditChanged()
{
    ColorFields::setComplement(m_controls->fields.blue, m_controls->fields.yellow);
}

void TavikColorPopup::onColorWellSelected(const QColor &color)
{
    setCurrentColor(color);
    Q_EMIT colorChanged(color);
}

void TavikColorPopup::onAddColorWellRequested()
{
    m_controls->palette->addColor(m_currentColor);
}

// ---- Sampling the screen ----

void TavikColorPopup::onClickPickColor()
{
    m_sampling->start();
    connect(m_sampling->sampler(), SIGNAL(screenColor(QColor)), this, SLOT(onPickColorChanged(QColor)));
}

void TavikColorPopup::onPickColorChanged(const QColor &color)
{
    const QPointer<Screenshot> finished = m_sampling->sampler();
    setCurrentColor(color);
    Q_EMIT colorChanged(color);
    m_sampling->end(finished);
    Q_EMIT colorPopupHide();
}

void TavikColorPopup::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (m_sampling->sampler())
        Q_EMIT colorPopupHide();
}

// ---- Placement and outline ----

void TavikColorPopup::showColorPopup(const QPoint &pos, const QColor &color)
{
    m_anchor = pos;
    adjustPosition();
    QColor hsv = color.toHsv();
    if (hsv.hue() < 0)
        hsv.setHsv(0, color.saturation(), color.value(), color.alpha());
    setCurrentColor(hsv);
    // Where the side has changed, the controls are to cast their shadow from their new places.
    m_mainLayout->activate();
    if (PopupShadow *own = PopupShadow::of(this))
        own->prepare();
    show();
}

void TavikColorPopup::adjustPosition()
{
    const PopupPlacement placement(size(), m_anchor);
    if (!m_outline->hasSide(placement.isBelow)) {
        *m_outline = PopupOutline(size(), placement.isBelow);
        m_mainLayout->setContentsMargins(m_outline->margins());
        if (PopupShadow *own = PopupShadow::of(this))
            own->outlineChanged();
    }
    move(placement.corner);
}

void TavikColorPopup::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (const PopupShadow *own = PopupShadow::of(this))
        own->paint(&painter);
    m_outline->paint(&painter);
}
