#include "buttons/tavikradiobutton.h"

#include "foundation/lenconverter.h"
#include "foundation/sheet_p.h"
#include "foundation/typographytool.h"

TavikRadioButton::TavikRadioButton(const QString &text, QWidget *parent)
    : QRadioButton(text, parent)
{
    TypographyTool::setFontHint(this);
    updateStyleSheet();
}

TavikRadioButton::TavikRadioButton(QWidget *parent)
    : TavikRadioButton(QString(), parent)
{
}

double TavikRadioButton::fontRemSz() const
{
    return m_fontRemSz;
}

void TavikRadioButton::setFontRemSz(double rem)
{
    m_fontRemSz = rem;
}

double TavikRadioButton::indicatorSz() const
{
    return m_indicatorSz;
}

void TavikRadioButton::setIndicatorSz(double rem)
{
    m_indicatorSz = rem;
}

void TavikRadioButton::updateStyleSheet()
{
    const QString indicator = LenConverter::remToStrPx(m_indicatorSz);
    const Sheet::Table sheet = {
        {"TavikRadioButton{padding: 0.1em;color: ", "#404040"},
        {";font-size: ", LenConverter::remToStrPx(m_fontRemSz)},
        {"px;}TavikRadioButton::indicator{width: ", indicator},
        {"px;height: ", indicator},
        {"px;}TavikRadioButton::indicator:unchecked{image: url(:/Radio/images/radio_unchecked.svg);}"
         "TavikRadioButton::indicator:unchecked:hover{image: "
         "url(:/Radio/images/radio_unchecked_hover.svg);}"
         "TavikRadioButton::indicator:unchecked:pressed{image: "
         "url(:/Radio/images/radio_unchecked_press.svg);}"
         "TavikRadioButton::indicator:checked{image: url(:/Radio/images/radio_checked.svg);}"},
    };
    Sheet::set(this, sheet);
}
