#include "inputs/tavikslider.h"

#include "foundation/lenconverter.h"
#include "foundation/sheet_p.h"

TavikSlider::TavikSlider(const int &pxWidth, const int &pxHeight, QWidget *parent)
    : WheelBlocked(Qt::Horizontal, parent)
{
    setFixedSize(pxWidth, pxHeight);
    updateStyleSheet();
}

TavikSlider::TavikSlider(const double &remWidth, const int &remHeight, QWidget *parent)
    : TavikSlider(LenConverter::remToPx(remWidth), LenConverter::remToPx(remHeight), parent)
{
}

TavikSlider::TavikSlider(QWidget *parent)
    : WheelBlocked(Qt::Horizontal, parent)
{
    updateStyleSheet();
}

void TavikSlider::updateStyleSheet()
{
    const Sheet::Table sheet = {
        {"TavikSlider::groove:horizontal {background: #C0C0C0;  height: 3px;  border-radius: 1px;  }"
         "TavikSlider::handle:horizontal {background: ",
         "#ffffff"},
        {";width: 18px;margin-top: -9px;margin-bottom: -9px;border-radius: 9px;border: 1px solid #c2c2c2;}"
         "TavikSlider::handle:horizontal:hover {background: ",
         "#f7f7f7"},
        {";}TavikSlider::handle:horizontal:pressed {background: ", "#e8e8e8"},
        {";}TavikSlider::add-page:horizontal {background: #d0d0d0;}"
         "TavikSlider::sub-page:horizontal {background: #08a274;}"},
    };
    Sheet::set(this, sheet);
}
