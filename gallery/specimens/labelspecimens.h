#ifndef GALLERY_LABELSPECIMENS_H
#define GALLERY_LABELSPECIMENS_H

#include <QCoreApplication>

class QWidget;

/// Specimens of TavikLabel.
class LabelSpecimens
{
    Q_DECLARE_TR_FUNCTIONS(LabelSpecimens)

public:
    static QWidget *types();
    static QWidget *sizeAndColour();

    /// Captions and hints around choices.
    static QWidget *form();
};

#endif
