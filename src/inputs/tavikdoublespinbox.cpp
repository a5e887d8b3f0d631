#include "inputs/tavikdoublespinbox.h"

#include "foundation/lenconverter.h"
#include "foundation/sheet_p.h"
#include "inputs/spinboxsheet_p.h"

TavikDoubleSpinbox::TavikDoubleSpinbox(double minimum, double maximum, double step, QWidget *parent)
    : WheelBlocked(parent)
{
    TypographyTool::setFontHint(this);
    setAlignment(Qt::AlignHCenter);
    updateStyleSheet();
    setSingleStep(step);
    setRange(minimum, maximum);
}

TavikDoubleSpinbox::TavikDoubleSpinbox(QWidget *parent)
    : TavikDoubleSpinbox(0.0, 99.99, 1.0, parent)
{
}

void TavikDoubleSpinbox::setFontRemSz(double rem)
{
    m_fontSz = LenConverter::remToStrPx(rem);
    updateStyleSheet();
}

void TavikDoubleSpinbox::updateStyleSheet()
{
    Sheet::set(this, SpinboxSheet::withButtons("TavikDoubleSpinbox", m_fontSz, "background: #efefef;"));
}
