#ifndef GALLERY_SPINBOXSPECIMENS_H
#define GALLERY_SPINBOXSPECIMENS_H

#include <QCoreApplication>

class QWidget;

/// Specimens of TavikSpinbox and TavikDoubleSpinbox.
class SpinboxSpecimens
{
    Q_DECLARE_TR_FUNCTIONS(SpinboxSpecimens)

public:
    /// Whole and broken numbers, with what they report.
    static QWidget *numbers();

    /// Without step buttons, with what it reports, in two font sizes.
    static QWidget *withoutButtons();

    static QWidget *states();
};

#endif
