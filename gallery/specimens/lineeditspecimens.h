#ifndef GALLERY_LINEEDITSPECIMENS_H
#define GALLERY_LINEEDITSPECIMENS_H

#include <QCoreApplication>

class QWidget;

/// Specimens of TavikLineEdit.
class LineEditSpecimens
{
    Q_DECLARE_TR_FUNCTIONS(LineEditSpecimens)

public:
    /// One field a type, with what it reports.
    static QWidget *types();

    /// Fields with values written by setContent.
    static QWidget *contents();

    /// A range, and text that stands elsewhere than at the left.
    static QWidget *rangeAndAlignment();

    static QWidget *states();
};

#endif
