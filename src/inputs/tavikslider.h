#ifndef TAVIK_TAVIKSLIDER_H
#define TAVIK_TAVIKSLIDER_H

#include <QSlider>

#include <Tavik/WheelBlocked>
#include <Tavik/tavik_export.h>

/// A horizontal slider of a fixed size.
///
/// \code
/// auto *opacity = new TavikSlider(12.0, 3, this);   // 12 by 3 rem
/// opacity->setRange(0, 100);
/// connect(opacity, &QSlider::valueChanged, layer, &Layer::setOpacity);
/// \endcode
///
/// The type of the first argument decides the unit of both lengths: an `int` means pixels, a `double` rem.
/// Groove and handle are pixels at every rem: the handle takes 21 pixels of height. The wheel ends at the
/// slider: neither its value changes nor does anything around it scroll.
class TAVIK_EXPORT TavikSlider : public WheelBlocked<QSlider>
{
    Q_OBJECT

public:
    /// A slider with a fixed size in pixels.
    TavikSlider(const int &pxWidth, const int &pxHeight, QWidget *parent = nullptr);

    /// A slider with a fixed size in rem; the height is a whole number of rem.
    TavikSlider(const double &remWidth, const int &remHeight, QWidget *parent = nullptr);

    /// A slider without a fixed size, as Qt Designer makes it. Leave it 21 pixels of height or more, or the
    /// handle is clipped.
    explicit TavikSlider(QWidget *parent = nullptr);

    /// Builds the style sheet anew and sets it.
    void updateStyleSheet();
};

#endif
