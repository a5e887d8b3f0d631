#ifndef GALLERY_COLOURSPECIMENS_H
#define GALLERY_COLOURSPECIMENS_H

#include <QCoreApplication>

class QWidget;

/// Specimens of the colour controls.
class ColourSpecimens
{
    Q_DECLARE_TR_FUNCTIONS(ColourSpecimens)

public:
    /// Three buttons and a bar that share one popup, with a log of what they all emit.
    static QWidget *wired();

    /// The popup as it looks when it is open.
    static QWidget *popup();

    static QWidget *buttonStates();
    static QWidget *gradientBar();
    static QWidget *square();
    static QWidget *sliders();
    static QWidget *palette();
};

#endif
