#include "buttons/tavikbutton.h"

#include "foundation/lengths_p.h"
#include "foundation/sheet_p.h"
#include "foundation/typographytool.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPainter>

TavikButton::TavikButton(Type type, QWidget *parent)
    : TavikButton(QString(), type, parent)
{
}

TavikButton::TavikButton(const QString &text, Type type, QWidget *parent)
    : RemSized(text, parent)
{
    initStyleProperties(type);
    updateStyleSheet();
}

TavikButton::TavikButton(const QString &text, QWidget *parent)
    : TavikButton(text, Solid, parent)
{
}

TavikButton::TavikButton(QWidget *parent)
    : TavikButton(Solid, parent)
{
}

TavikButton::TavikButton(const QIcon &icon, const QSizeF &iconRemSize, const QString &text, Type type,
                         QWidget *parent)
    : RemSized(icon, text, parent)
{
    initStyleProperties(type);
    updateStyleSheet();
    setIconSize(Lengths::remToPx(iconRemSize));
}

TavikButton::TavikButton(const QIcon &icon, const QSizeF &iconRemSize, Type type, QWidget *parent)
    : TavikButton(icon, iconRemSize, QString(), type, parent)
{
}

TavikButton::TavikButton(const QIcon &icon, const QSize &iconSize, Type type, QWidget *parent)
    : RemSized(icon, QString(), parent)
{
    initStyleProperties(type);
    updateStyleSheet();
    setIconSize(iconSize);
}

TavikButton::TavikButton(const QString &imagePath, const QSize &imageSize, QLabel *label, QWidget *parent)
    : RemSized(QString(), parent)
{
    auto *box = new QHBoxLayout;
    // The layout's own alignment; QLayout::setAlignment(widget, ...) hides the plain form.
    static_cast<QLayoutItem *>(box)->setAlignment(Qt::AlignCenter);
    setLayout(box);

    auto *picture = new QLabel;
    box->addWidget(picture);
    picture->setFixedSize(LenConverter::iniRemToPxSz(imageSize.width(), imageSize.height()));
    picture->setScaledContents(true);
    picture->setPixmap(QPixmap(imagePath));

    box->addWidget(label);
}

void TavikButton::initStyleProperties(Type type)
{
    struct Property
    {
        QString TavikButton::*field;
        const char *values[5]; // one for each type; null leaves the field as it is
    };
    // clang-format off
    static const Property table[] = {
        //                                    Solid      Outline    Toggle     Link         Flat
        {&TavikButton::m_bgColor,          {"#08a274", "#ffffff", "#ffffff", "#00000000", "#ffffff"}},
        {&TavikButton::m_hoverBgColor,     {"#13b585", "#ffffff", "#13b585", "#00000000", "#13b585"}},
        {&TavikButton::m_pressBgColor,     {"#138765", "#ffffff", "#138765", "#00000000", "#138765"}},
        {&TavikButton::m_checkedBgColor,   {nullptr,   nullptr,   "#08a274", nullptr,     "#08a274"}},
        {&TavikButton::m_color,            {"#ffffff", "#08a274", "#404040", "#108ee9",   nullptr}},
        {&TavikButton::m_hoverColor,       {"#ffffff", "#13b585", "#ffffff", "#48aaee",   nullptr}},
        {&TavikButton::m_pressColor,       {"#ffffff", "#138765", "#ffffff", "#0f77c9",   nullptr}},
        {&TavikButton::m_checkedColor,     {nullptr,   nullptr,   "#ffffff", nullptr,     nullptr}},
        {&TavikButton::m_borderColor,      {"#d3d3d3", "#08a274", "#d3d3d3", "#00000000", "#d3d3d3"}},
        {&TavikButton::m_hoverBorderColor, {"#d3d3d3", "#13b585", "#d3d3d3", "#00000000", "#d3d3d3"}},
        {&TavikButton::m_pressBorderColor, {"#d3d3d3", "#138765", "#d3d3d3", "#00000000", "#d3d3d3"}},
        {&TavikButton::m_borderWidth,      {"1",       "1",       "1",       "0",         "0"}},
        {&TavikButton::m_borderRadius,     {nullptr,   nullptr,   "0",       "0",         "0"}},
        {&TavikButton::m_margin,           {"0",       "0",       "0",       "0",         "0"}},
    };
    // clang-format on

    if (type >= Solid && type <= Flat) {
        for (const Property &property : table) {
            if (const char *value = property.values[type])
                this->*property.field = QLatin1String(value);
        }
    }
    if (type == Toggle)
        setCheckable(true);
    TypographyTool::setFontHint(this);
}

void TavikButton::updateStyleSheet()
{
    const Sheet::Table sheet = {
        {"TavikButton {color: ", m_color},
        {";font-size: ", m_fontSz},
        {"px;background-color: ", m_bgColor},
        {";border: ", m_borderWidth},
        {"px solid ", m_borderColor},
        {";margin: ", m_margin},
        {"px;padding: 0.1em;border-radius: ", m_borderRadius},
        {"px;}TavikButton:checked {color: ", m_checkedColor},
        {";background-color: ", m_checkedBgColor},
        {";border: ", m_borderWidth},
        {"px solid ", m_checkedBorderColor},
        {";}TavikButton:hover, TavikButton:hover:checked, TavikButton:hover:unchecked {color: ",
         m_hoverColor},
        {";background-color: ", m_hoverBgColor},
        {";border: ", m_borderWidth},
        {"px solid ", m_hoverBorderColor},
        {";}TavikButton:pressed, TavikButton:pressed:checked, TavikButton:pressed:unchecked {color: ",
         m_pressColor},
        {";background-color: ", m_pressBgColor},
        {";border: ", m_borderWidth},
        {"px solid ", m_pressBorderColor},
        {";}TavikButton:disabled {color: ", "#909090"},
        {";}"},
    };
    Sheet::set(this, sheet);
}

void TavikButton::setFontRemSz(double rem)
{
    m_fontSz = LenConverter::remToStrPx(rem);
    updateStyleSheet();
}

void TavikButton::setFontPxSz(int px)
{
    m_fontSz = QString::number(px);
    updateStyleSheet();
}

bool TavikButton::isPaintOverrided() const
{
    return m_isPaintOverrided;
}

void TavikButton::setIsPaintOverrided(bool isPaintOverrided)
{
    m_isPaintOverrided = isPaintOverrided;
}

QString TavikButton::bgColor() const
{
    return m_bgColor;
}

void TavikButton::setBgColor(const QString &bgColor)
{
    m_bgColor = bgColor;
}

QString TavikButton::hoverBgColor() const
{
    return m_hoverBgColor;
}

void TavikButton::setHoverBgColor(const QString &hoverBgColor)
{
    m_hoverBgColor = hoverBgColor;
}

QString TavikButton::pressBgColor() const
{
    return m_pressBgColor;
}

void TavikButton::setPressBgColor(const QString &pressBgColor)
{
    m_pressBgColor = pressBgColor;
}

QString TavikButton::checkedBgColor() const
{
    return m_checkedBgColor;
}

void TavikButton::setCheckedBgColor(const QString &checkedBgColor)
{
    m_checkedBgColor = checkedBgColor;
}

QString TavikButton::color() const
{
    return m_color;
}

void TavikButton::setColor(const QString &color)
{
    m_color = color;
}

QString TavikButton::hoverColor() const
{
    return m_hoverColor;
}

void TavikButton::setHoverColor(const QString &hoverColor)
{
    m_hoverColor = hoverColor;
}

QString TavikButton::checkedColor() const
{
    return m_checkedColor;
}

void TavikButton::setCheckedColor(const QString &checkedColor)
{
    m_checkedColor = checkedColor;
}

QString TavikButton::borderColor() const
{
    return m_borderColor;
}

void TavikButton::setBorderColor(const QString &borderColor)
{
    m_borderColor = borderColor;
}

QString TavikButton::hoverBorderColor() const
{
    return m_hoverBorderColor;
}

void TavikButton::setHoverBorderColor(const QString &hoverBorderColor)
{
    m_hoverBorderColor = hoverBorderColor;
}

QString TavikButton::pressBorderColor() const
{
    return m_pressBorderColor;
}

void TavikButton::setPressBorderColor(const QString &pressBorderColor)
{
    m_pressBorderColor = pressBorderColor;
}

QString TavikButton::checkedBorderColor() const
{
    return m_checkedBorderColor;
}

void TavikButton::setCheckedBorderColor(const QString &checkedBorderColor)
{
    m_checkedBorderColor = checkedBorderColor;
}

QString TavikButton::borderWidth() const
{
    return m_borderWidth;
}

void TavikButton::setBorderWidth(const QString &borderWidth)
{
    m_borderWidth = borderWidth;
}

QString TavikButton::borderRadius() const
{
    return m_borderRadius;
}

void TavikButton::setBorderRadius(const QString &borderRadius)
{
    m_borderRadius = borderRadius;
}

QString TavikButton::margin() const
{
    return m_margin;
}

void TavikButton::setMargin(const QString &margin)
{
    m_margin = margin;
}

void TavikButton::paintEvent(QPaintEvent *event)
{
    if (!m_isPaintOverrided) {
        QPushButton::paintEvent(event);
        return;
    }
    QPainter painter(this);
    paintPicture(painter);
}

void TavikButton::paintPicture(QPainter &painter) const
{
    if (icon().isNull())
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::NoBrush);
    const QIcon::Mode mode = isChecked() ? QIcon::Selected : underMouse() ? QIcon::Active : QIcon::Normal;
    painter.drawPixmap(QRect(0, 0, width(), height()), icon().pixmap(size(), mode, QIcon::On), QRect());
}
