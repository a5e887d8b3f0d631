#ifndef TAVIK_POPUPCONTROLS_P_H
#define TAVIK_POPUPCONTROLS_P_H

#include "buttons/tavikbutton.h"
#include "color/colorfields_p.h"
#include "color/tavikcolorpicker.h"
#include "color/tavikcolorsilder.h"
#include "color/tavikcolorwell.h"
#include "inputs/taviklineedit.h"

class QVBoxLayout;

/// The popup's controls from top to bottom. What is shown in them here runs no slot.
class PopupControls
{
public:
    /// Makes the controls and adds them to a column, whose widget they then belong to.
    void build(QVBoxLayout *column);

    /// Shows a colour in square and sliders.
    void showInSquareAndSliders(const QColor &color) const;

    /// Gives a colour the components that square and sliders hold.
    void takeFromSquareAndSliders(QColor *color) const;

    TavikColorPicker *square = nullptr;
    TavikButton *pipette = nullptr;
    TavikColorSilder *hue = nullptr;
    TavikColorSilder *alpha = nullptr;
    ColorFields fields;
    TavikColorWell *palette = nullptr;

private:
    void buildSquare(QVBoxLayout *column);
    void buildSliders(QVBoxLayout *column);
    void buildPalette(QVBoxLayout *column);
};

#endif
