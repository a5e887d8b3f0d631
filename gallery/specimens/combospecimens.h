#ifndef GALLERY_COMBOSPECIMENS_H
#define GALLERY_COMBOSPECIMENS_H

#include <QCoreApplication>

class QWidget;

/// Specimens of TavikComboBox and TavikFontFamilyComboBox.
class ComboSpecimens
{
    Q_DECLARE_TR_FUNCTIONS(ComboSpecimens)

public:
    /// With and without a field, with what they report.
    static QWidget *types();

    /// The chooser of fonts, with a text in the chosen font.
    static QWidget *fontFamilies();

    static QWidget *states();
};

#endif
