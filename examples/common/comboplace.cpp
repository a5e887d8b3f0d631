#include "common/comboplace.h"

#include <Tavik/TavikComboBox>

ComboPlace::ComboPlace(TavikComboBox *combo, double remWidth, double remHeight)
{
    combo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    removeMargins();
    setRemSize(remWidth, remHeight);
    addWidget(combo);
    setFocusProxy(combo);
}
