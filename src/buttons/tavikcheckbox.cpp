#include "buttons/tavikcheckbox.h"

#include "foundation/lenconverter.h"
#include "foundation/sheet_p.h"
#include "foundation/typographytool.h"

TavikCheckBox::TavikCheckBox(const QString &text, QWidget *parent)
    : QCheckBox(text, parent)
{
    TypographyTool::setFontHint(this);
    updateStyleSheet();
}

TavikCheckBox::TavikCheckBox(QWidget *parent)
    : TavikCheckBox(QString(), parent)
{
}

double TavikCheckBox::fontRemSz() const
{
    return m_fontRemSz;
}

void TavikCheckBox::setFontRemSz(double rem)
{
    m_fontRemSz = rem;
}

double TavikCheckBox::indicatorSz() const
{
    return m_indicatorSz;
}

void TavikCheckBox::setIndicatorSz(double rem)
{
    m_indicatorSz = rem;
}

QString TavikCheckBox::fontColor() const
{
    return m_fontColor;
}

void TavikCheckBox::setFontColor(const QString &color)
{
    m_fontColor = color;
}

void TavikCheckBox::updateStyleSheet()
{
    const QString indicator = LenConverter::remToStrPx(m_indicatorSz);
    const Sheet::Table sheet = {
        {"TavikCheckBox {spacing: 3px;padding: 0.1em;color: ", m_fontColor},
        {";font-size: ", LenConverter::remToStrPx(m_fontRemSz)},
        {"px;}TavikCheckBox::indicator {width: ", indicator},
        {"px;height: ", indicator},
        {"px;}TavikCheckBox::indicator:unchecked {image: url(:/Check/images/uncheck.svg);}"
         "TavikCheckBox::indicator:unchecked:hover {image: url(:/Check/images/uncheck_hover.svg);}"
         "TavikCheckBox::indicator:checked {image: url(:/Check/images/check.svg);}"},
    };
    Sheet::set(this, sheet);
}
