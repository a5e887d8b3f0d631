#include "buttons/taviklabel.h"

#include "foundation/lenconverter.h"
#include "foundation/sheet_p.h"

TavikLabel::TavikLabel(const QString &text, Type type, QWidget *parent)
    : QLabel(text, parent)
{
    TypographyTool::setFontHint(this);
    initStyleProperties(type);
    updateStyleSheet();
}

TavikLabel::TavikLabel(const QString &text, QWidget *parent)
    : TavikLabel(text, Default, parent)
{
}

TavikLabel::TavikLabel(QWidget *parent)
    : TavikLabel(QString(), Default, parent)
{
}

void TavikLabel::initStyleProperties(Type type)
{
    switch (type) {
    case Default:
        m_color = QStringLiteral("#404040");
        m_fontSz = TypographyTool::defualtFontSz();
        break;
    case Assist:
        m_color = QStringLiteral("#909090");
        m_fontSz = TypographyTool::assistFontSz();
        break;
    }
}

void TavikLabel::updateStyleSheet()
{
    const Sheet::Table sheet = {
        {"TavikLabel{color: ", m_color},
        {";font-size: ", m_fontSz},
        {"px;padding: 0.1em;}TavikLabel:disabled{color: ", "#e0e0e0"},
        {";}"},
    };
    Sheet::set(this, sheet);
}

QString TavikLabel::color() const
{
    return m_color;
}

void TavikLabel::setColor(const QString &color)
{
    m_color = color;
    updateStyleSheet();
}

void TavikLabel::setFontRemSz(double rem)
{
    m_fontSz = LenConverter::remToStrPx(rem);
    updateStyleSheet();
}

void TavikLabel::setRemWidth(double rem)
{
    setFixedWidth(LenConverter::remToPx(rem));
}

void TavikLabel::setRemHeight(double rem)
{
    setFixedHeight(LenConverter::remToPx(rem));
}

void TavikLabel::setRemSize(double width, double height)
{
    setFixedSize(LenConverter::remToPx(width), LenConverter::remToPx(height));
}
