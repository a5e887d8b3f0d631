#ifndef TAVIK_WHITEBUTTON_P_H
#define TAVIK_WHITEBUTTON_P_H

#include "buttons/tavikbutton.h"

namespace WhiteButton {

/// Gives a button the look of those in the popup, white with a grey border, and sets its style sheet anew.
inline void style(TavikButton *button)
{
    button->setBgColor(QStringLiteral("#ffffff"));
    button->setHoverBgColor(QStringLiteral("#f7f7f7"));
    button->setPressBgColor(QStringLiteral("#e8e8e8"));
    const QString border = QStringLiteral("#d3d3d3");
    button->setBorderColor(border);
    button->setHoverBorderColor(border);
    button->setPressBorderColor(border);
    button->updateStyleSheet();
}

} // namespace WhiteButton

#endif
