#ifndef GALLERY_SLIDERSPECIMENS_H
#define GALLERY_SLIDERSPECIMENS_H

#include <QCoreApplication>

class QWidget;

/// Specimens of TavikSlider and TavikDial.
class SliderSpecimens
{
    Q_DECLARE_TR_FUNCTIONS(SliderSpecimens)

public:
    /// Sliders of both forms, with what they report.
    static QWidget *sliders();

    /// Dials, with what they report.
    static QWidget *dials();

    static QWidget *states();
};

#endif
