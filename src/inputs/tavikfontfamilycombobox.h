#ifndef TAVIK_TAVIKFONTFAMILYCOMBOBOX_H
#define TAVIK_TAVIKFONTFAMILYCOMBOBOX_H

#include <Tavik/TavikComboBox>

/// A chooser for the font families of the system, with completion while typing.
///
/// \code
/// auto *family = new TavikFontFamilyComboBox(this);
/// connect(family, &QComboBox::currentTextChanged, sample, &Sample::setFamily);
/// \endcode
///
/// Names complete in upper or lower case; a name that is not in the list adds no item.
class TAVIK_EXPORT TavikFontFamilyComboBox : public TavikComboBox
{
    Q_OBJECT

public:
    /// A chooser with all families in the order of the font database.
    explicit TavikFontFamilyComboBox(QWidget *parent = nullptr);

    /// Fills the list and its completion anew, for instance after the application has added fonts. The first
    /// family is current afterwards.
    void initFontFamilies();
};

#endif
