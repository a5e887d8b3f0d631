#ifndef GALLERY_CHECKSPECIMENS_H
#define GALLERY_CHECKSPECIMENS_H

#include <QCoreApplication>

class QWidget;

/// Specimens of TavikCheckBox and TavikRadioButton.
class CheckSpecimens
{
    Q_DECLARE_TR_FUNCTIONS(CheckSpecimens)

public:
    /// Check boxes, one of them with three states, with what they report.
    static QWidget *checkBoxes();

    /// Radio buttons, with what they report.
    static QWidget *radioButtons();

    /// Other sizes and another colour.
    static QWidget *sizes();

    static QWidget *states();
};

#endif
