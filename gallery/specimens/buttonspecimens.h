#ifndef GALLERY_BUTTONSPECIMENS_H
#define GALLERY_BUTTONSPECIMENS_H

#include <QCoreApplication>

class QWidget;

/// Specimens of TavikButton.
class ButtonSpecimens
{
    Q_DECLARE_TR_FUNCTIONS(ButtonSpecimens)

public:
    /// The five types in their states.
    static QWidget *types();

    static QWidget *iconAndText();

    /// The same icon with a size in rem and with one in pixels.
    static QWidget *iconAlone();

    static QWidget *colours();
    static QWidget *caption();
    static QWidget *corners();
    static QWidget *fontSizes();

    /// Buttons that are nothing but a picture, in their states.
    static QWidget *pictures();
};

#endif
