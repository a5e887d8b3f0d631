#ifndef COMMON_COMBOPLACE_H
#define COMMON_COMBOPLACE_H

#include <Tavik/TavikContainer>

class TavikComboBox;

/// A place of a fixed size that a combo box fills.
///
/// \code
/// auto *unit = new TavikComboBox;
/// row->addWidget(new ComboPlace(unit, 14, 2.333));   // rem
/// \endcode
///
/// A combo box takes the least size of its look whenever it is polished, anew under each parent, and with it loses a
/// fixed one. Here it is stretched instead.
class ComboPlace : public TavikContainer
{
    Q_OBJECT

public:
    /// Takes the combo box in, at a size in rem. The focus goes through to it.
    ComboPlace(TavikComboBox *combo, double remWidth, double remHeight);
};

#endif
