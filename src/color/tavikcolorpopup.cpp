#include "color/tavikcolorpopup.h"

#include "buttons/taviklabel.h"
#include "color/popupshadow_p.h"
#include "color/screenshot_p.h"
#include "color/tavikcolorpicker.h"
#include "color/tavikcolorsilder.h"
#include "color/tavikcolorwell.h"
#include "color/whitebutton_p.h"
#include "foundation/lenconverter.h"
#include "inputs/taviklineedit.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {

constexpr int separatorOffset = 295; // pixels below the outline's upper edge

int number(const TavikLineEdit *edit)
{
    return edit->text().toInt();
}

QString complement(int channel)
{
    return QString::number(255 - channel);
}

/// Writes into a field whose slot is not to run.
void rewrite(TavikLineEdit *edit, const QString &text)
{
    const QSignalBlocker blocker(edit);
    edit->setText(text);
}

} // namespace

/// One of the eight fields, as the column is built from them.
struct TavikColorPopup::Field
{
    TavikLineEdit *TavikColorPopup::*edit;
    TavikLineEdit::Type type;
    QString caption;
    double designWidth;
};

TavikColorPopup::TavikColorPopup(const QColor &color, QWidget *parent)
    : QWidget(parent)
    , m_currentColor(color)
{
    buildWindow();
    buildColumn();
    connectControls();
}

TavikColorPopup::TavikColorPopup(QWidget *parent)
    : TavikColorPopup(Qt::white, parent)
{
}

TavikColorPopup::~TavikColorPopup()
{
    delete m_screenshot;
}

QColor TavikColorPopup::currentColor() const
{
    return m_currentColor;
}

// ---- Building ----

void TavikColorPopup::buildWindow()
{
    setAccessibleName(tr("Color Picker"));
    setWindowFlags(Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    setAttribute(Qt::WA_TranslucentBackground, true);
    setFixedSize(LenConverter::iniRemToPxSz(208 + 2 * m_shadowRadius, 388 + 2 * m_shadowRadius));

    auto *effect = new PopupShadow(this);
    effect->setOffset(QPointF(0, 0));
    effect->setColor(QColor(Qt::black));
    effect->setBlurRadius(m_shadowRadius);
    setGraphicsEffect(effect);

    m_mainLayout = new QVBoxLayout;
    m_mainLayout->setSpacing(0);
    m_mainLayout->setContentsMargins(0, m_shadowRadius + m_arrowHeight, 0, m_shadowRadius);
    m_mainLayout->setAlignment(Qt::AlignHCenter);
    setLayout(m_mainLayout);
}

void TavikColorPopup::buildColumn()
{
    addGap(10);
    addCaption(tr("Color Picker"));
    addGap(7);
    m_picker = new TavikColorPicker(LenConverter::iniRemToPx(190), LenConverter::iniRemToPx(136));
    m_mainLayout->addWidget(m_picker);
    m_mainLayout->setAlignment(m_picker, Qt::AlignHCenter);
    addGap(6);
    m_mainLayout->addLayout(buildSliders());
    addGap(10);
    m_mainLayout->addLayout(buildFields({
        {&TavikColorPopup::m_hexEdit, TavikLineEdit::HexDigits, tr("Hex"), 60},
        {&TavikColorPopup::m_rEdit, TavikLineEdit::Integer, tr("R"), 28},
        {&TavikColorPopup::m_gEdit, TavikLineEdit::Integer, tr("G"), 28},
        {&TavikColorPopup::m_bEdit, TavikLineEdit::Integer, tr("B"), 28},
        {&TavikColorPopup::m_aEdit, TavikLineEdit::Integer, tr("A"), 28},
    }));
    m_mainLayout->addLayout(buildFields({
        {&TavikColorPopup::m_cEdit, TavikLineEdit::Integer, tr("C"), 28},
        {&TavikColorPopup::m_mEdit, TavikLineEdit::Integer, tr("M"), 28},
        {&TavikColorPopup::m_yEdit, TavikLineEdit::Integer, tr("Y"), 28},
    }));
    addGap(8);
    addCaption(tr("Colors"));
    addGap(5);
    m_colorWell = new TavikColorWell(LenConverter::iniRemToPx(186), LenConverter::iniRemToPx(43));
    m_mainLayout->addWidget(m_colorWell);
    m_mainLayout->addStretch(0);
}

QBoxLayout *TavikColorPopup::buildSliders()
{
    m_pickButton = new TavikButton(QIcon(QStringLiteral(":/Color/images/color_picker.svg")), QSizeF(-1, -1),
                                   TavikButton::Outline);
    m_pickButton->setFixedSize(LenConverter::iniRemToPxSz(24, 24));
    WhiteButton::style(m_pickButton);
    m_pickButton->setAccessibleName(tr("Pick a color from the screen"));

    const QSize size = LenConverter::iniRemToPxSz(166, 16);
    m_hueSlider = new TavikColorSilder(size.width(), size.height(), TavikColorSilder::Hue);
    m_alphaSlider = new TavikColorSilder(size.width(), size.height(), TavikColorSilder::Alpha);
    auto *sliders = new QVBoxLayout;
    sliders->setSpacing(LenConverter::iniRemToPx(1));
    sliders->addWidget(m_hueSlider);
    sliders->addWidget(m_alphaSlider);

    auto *row = new QHBoxLayout;
    row->setSpacing(0);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_pickButton);
    row->addLayout(sliders);
    return row;
}

QBoxLayout *TavikColorPopup::buildFields(const QVector<Field> &fields)
{
    auto *row = new QHBoxLayout;
    for (const Field &field : fields) {
        auto *edit = new TavikLineEdit(QString(), field.type, Qt::AlignHCenter | Qt::AlignVCenter);
        edit->setFontPxSz(LenConverter::iniRemToPx(12));
        edit->setFixedSize(LenConverter::iniRemToPxSz(field.designWidth, 20));
        if (field.type == TavikLineEdit::Integer) {
            edit->setMaxLength(3);
            edit->setIntRange(0, 255);
        }
        this->*field.edit = edit;

        auto *caption = new TavikLabel(field.caption, TavikLabel::Assist);
        caption->setBuddy(edit); // by which a screen reader names the field
        auto *column = new QVBoxLayout;
        column->addWidget(edit);
        column->addWidget(caption);
        column->setAlignment(caption, Qt::AlignHCenter);
        row->addLayout(column);
    }
    return row;
}

void TavikColorPopup::connectControls()
{
    connect(m_hueSlider, &QAbstractSlider::valueChanged, this, &TavikColorPopup::onHueChanged);
    connect(m_alphaSlider, &QAbstractSlider::valueChanged, this, &TavikColorPopup::onAlphaChanged);
    connect(m_picker, &TavikColorPicker::colorChanged, this, &TavikColorPopup::onSatValChanged);
    connect(m_hexEdit, &QLineEdit::textChanged, this, &TavikColorPopup::onHexEditChanged);
    connect(m_rEdit, &QLineEdit::textChanged, this, &TavikColorPopup::onREditChanged);
    connect(m_gEdit, &QLineEdit::textChanged, this, &TavikColorPopup::onGEditChanged);
    connect(m_bEdit, &QLineEdit::textChanged, this, &TavikColorPopup::onBEditChanged);
    connect(m_aEdit, &QLineEdit::textChanged, this, &TavikColorPopup::onAEditChanged);
    connect(m_cEdit, &QLineEdit::textChanged, this, &TavikColorPopup::onCEditChanged);
    connect(m_mEdit, &QLineEdit::textChanged, this, &TavikColorPopup::onMEditChanged);
    connect(m_yEdit, &QLineEdit::textChanged, this, &TavikColorPopup::onYEditChanged);
    connect(m_colorWell, &TavikColorWell::colorSelected, this, &TavikColorPopup::onColorWellSelected);
    connect(m_colorWell, &TavikColorWell::addColorRequested, this,
            &TavikColorPopup::onAddColorWellRequested);
    connect(m_pickButton, &QAbstractButton::clicked, this, &TavikColorPopup::onClickPickColor);
}

void TavikColorPopup::addGap(double designPx)
{
    m_mainLayout->addSpacing(LenConverter::iniRemToPx(designPx));
}

void TavikColorPopup::addCaption(const QString &text)
{
    m_mainLayout->addWidget(new TavikLabel(text, TavikLabel::Assist));
}

// ---- One colour everywhere ----

void TavikColorPopup::setCurrentColor(const QColor &currentColor)
{
    m_currentColor = currentColor;
    updateSliders();
    updateEditValues();
}

void TavikColorPopup::updateCurrentColorFromSliders()
{
    const QColor picked = m_picker->currentColor();
    m_currentColor.setHsvF(m_hueSlider->value() / 360.0, picked.saturationF(), picked.valueF(),
                           m_alphaSlider->value() / 255.0);
    Q_EMIT colorChanged(m_currentColor);
}

void TavikColorPopup::updateSliders()
{
    const double hue = m_currentColor.hueF();
    const double alpha = m_currentColor.alphaF();
    const QSignalBlocker blockers[] = {QSignalBlocker(m_hueSlider), QSignalBlocker(m_picker),
                                       QSignalBlocker(m_alphaSlider)};
    m_hueSlider->setValue(int(hue * 360.0));
    m_picker->setCurrentHue(hue);
    m_picker->setCurrentColor(m_currentColor);
    m_alphaSlider->setValue(int(alpha * 255.0));
}

void TavikColorPopup::updateHexEdit()
{
    rewrite(m_hexEdit, m_currentColor.name());
}

void TavikColorPopup::updateRGBEdit()
{
    rewriteRGB();
    rewriteCMY();
}

void TavikColorPopup::updateEditValues()
{
    updateHexEdit();
    rewriteRGB();
    rewrite(m_aEdit, QString::number(m_currentColor.alpha()));
    rewriteCMY();
}

void TavikColorPopup::rewriteRGB()
{
    rewrite(m_rEdit, QString::number(m_currentColor.red()));
    rewrite(m_gEdit, QString::number(m_currentColor.green()));
    rewrite(m_bEdit, QString::number(m_currentColor.blue()));
}

void TavikColorPopup::rewriteCMY()
{
    rewrite(m_cEdit, complement(m_currentColor.red()));
    rewrite(m_mEdit, complement(m_currentColor.green()));
    rewrite(m_yEdit, complement(m_currentColor.blue()));
}

void TavikColorPopup::onHueChanged(int value)
{
    m_picker->setCurrentHue(value / 360.0);
    updateCurrentColorFromSliders();
    updateEditValues();
}

void TavikColorPopup::onAlphaChanged(int)
{
    onSatValChanged();
}

void TavikColorPopup::onSatValChanged()
{
    updateCurrentColorFromSliders();
    updateEditValues();
}

void TavikColorPopup::onHexEditChanged()
{
    QColor color(QLatin1Char('#') + m_hexEdit->text());
    color.setAlpha(m_currentColor.alpha()); // these digits have no say in it
    m_currentColor = color;
    updateRGBEdit();
    updateSliders();
    Q_EMIT colorChanged(m_currentColor);
}

void TavikColorPopup::onREditChanged()
{
    followChannel(&QColor::setRed, m_rEdit, m_cEdit);
}

void TavikColorPopup::onGEditChanged()
{
    followChannel(&QColor::setGreen, m_gEdit, m_mEdit);
}

void TavikColorPopup::onBEditChanged()
{
    followChannel(&QColor::setBlue, m_bEdit, m_yEdit);
}

void TavikColorPopup::onAEditChanged()
{
    m_currentColor.setAlpha(number(m_aEdit));
    followField();
}

/// The partner's slot runs too: it writes the plain number back.
void TavikColorPopup::followChannel(void (QColor::*set)(int), const TavikLineEdit *typed,
                                    TavikLineEdit *partner)
{
    const int channel = number(typed);
    (m_currentColor.*set)(channel);
    partner->setText(complement(channel));
    followField();
}

void TavikColorPopup::followField()
{
    updateHexEdit();
    updateSliders();
    Q_EMIT colorChanged(m_currentColor);
}

// C, M and Y become a colour by way of R, G and B, whose slots then run.

void TavikColorPopup::onCEditChanged()
{
    m_rEdit->setText(complement(number(m_cEdit)));
}

void TavikColorPopup::onMEditChanged()
{
    m_gEdit->setText(complement(number(m_mEdit)));
}

void TavikColorPopup::onYEditChanged()
{
    m_bEdit->setText(complement(number(m_yEdit)));
}

void TavikColorPopup::onColorWellSelected(const QColor &color)
{
    setCurrentColor(color);
    Q_EMIT colorChanged(color);
}

void TavikColorPopup::onAddColorWellRequested()
{
    m_colorWell->addColor(m_currentColor);
}

// ---- Sampling the screen ----

void TavikColorPopup::onClickPickColor()
{
    // It shows itself and so closes this popup, while m_screenshot still tells of the run before.
    auto *started = new Screenshot(nullptr);
    connect(started, SIGNAL(screenColor(QColor)), this, SLOT(onPickColorChanged(QColor)));
    // The run before, or one that was started when this popup told of its closing. It may be in the middle of
    // its own signal.
    if (m_screenshot)
        m_screenshot->deleteLater();
    m_screenshot = started;
}

void TavikColorPopup::onPickColorChanged(const QColor &color)
{
    const QPointer<Screenshot> finished = m_screenshot;
    setCurrentColor(color);
    Q_EMIT colorChanged(color);
    if (finished && m_screenshot == finished) {
        finished->deleteLater();
        m_screenshot = nullptr;
    }
    Q_EMIT colorPopupHide();
}

void TavikColorPopup::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (m_screenshot)
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
    if (PopupShadow *own = shadow())
        own->prepare();
    show();
}

/// Null if the application has set another effect.
PopupShadow *TavikColorPopup::shadow() const
{
    return qobject_cast<PopupShadow *>(graphicsEffect());
}

void TavikColorPopup::adjustPosition()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    const int screenHeight = screen ? screen->size().height() : 0;
    // No screen reaches as far as that, so a point beyond is out of sight either way.
    const int anchorX = qBound(-QWIDGETSIZE_MAX, m_anchor.x(), QWIDGETSIZE_MAX);
    const int anchorY = qBound(-QWIDGETSIZE_MAX, m_anchor.y(), QWIDGETSIZE_MAX);
    const bool hasRoomBelow = height() - 1 + m_shadowRadius + 6 < screenHeight - anchorY;
    initDrawElements(hasRoomBelow);
    const int x = anchorX - m_arrowTip - m_shadowRadius;
    const int above = anchorY - height() - m_arrowHeight + m_shadowRadius;
    move(x, hasRoomBelow ? anchorY : above);
}

void TavikColorPopup::initDrawElements(bool arrowUp)
{
    if (arrowUp == m_arrowUp && !m_polygon.isEmpty())
        return;
    m_arrowUp = arrowUp;
    const int m = m_shadowRadius;
    const int a = m_arrowHeight;
    const int left = m_arrowLeft + m;
    const int tip = m_arrowTip + m;
    const int right = m_arrowRight + m;
    const int innerRight = width() - m;
    const int innerHeight = height() - 2 * m;
    if (arrowUp) {
        const int top = a + m;
        const int bottom = a + innerHeight - 2 * m;
        m_mainLayout->setContentsMargins(m, top, m, m);
        m_polygon = {{m, top},          {left, top},          {tip, m},   {right, top},
                     {innerRight, top}, {innerRight, bottom}, {m, bottom}};
    } else {
        const int bottom = innerHeight - m;
        m_mainLayout->setContentsMargins(m, m, m, a + m);
        m_polygon = {{m, m},          {innerRight, m},   {innerRight, bottom},
                     {right, bottom}, {tip, a + bottom}, {left, bottom},
                     {m, bottom}};
    }
    const int lineY = m + separatorOffset + (arrowUp ? a : 0);
    m_lines = {QLine(m, lineY, width() - 1 - m, lineY)};
    if (PopupShadow *own = shadow())
        own->outlineChanged();
}

void TavikColorPopup::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (const PopupShadow *own = shadow())
        own->paint(&painter);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(QPen(QBrush(QColor(0xd3, 0xd3, 0xd3)), 1.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(QColor(Qt::white));
    painter.drawPolygon(m_polygon.constData(), m_polygon.size(), Qt::OddEvenFill);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.drawLines(m_lines);
}
