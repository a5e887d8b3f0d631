#include "inputs/tavikspinbox.h"

#include "foundation/lenconverter.h"
#include "foundation/sheet_p.h"
#include "inputs/spinboxsheet_p.h"

TavikSpinbox::TavikSpinbox(int minimum, int maximum, int step, QWidget *parent, bool hideStepButtons,
                           double fontRemSz)
    : WheelBlocked(parent)
{
    TypographyTool::setFontHint(this);
    setAlignment(Qt::AlignHCenter);
    if (fontRemSz != 0.0)
        m_fontSz = LenConverter::remToStrPx(fontRemSz);
    if (hideStepButtons)
        updateStyleSheetHideStepBut();
    else
        updateStyleSheet();
    setRange(minimum, maximum);
    setSingleStep(step);
}

TavikSpinbox::TavikSpinbox(QWidget *parent)
    : TavikSpinbox(0, 99, 1, parent)
{
}

void TavikSpinbox::setFontRemSz(double rem)
{
    m_fontSz = LenConverter::remToStrPx(rem);
    updateStyleSheet();
}

void TavikSpinbox::updateStyleSheet()
{
    Sheet::set(this, SpinboxSheet::withButtons("TavikSpinbox", m_fontSz));
}

void TavikSpinbox::updateStyleSheetHideStepBut()
{
    Sheet::set(this, SpinboxSheet::withoutButtons("TavikSpinbox", m_fontSz));
}
