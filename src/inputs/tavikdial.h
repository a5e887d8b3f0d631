#ifndef TAVIK_TAVIKDIAL_H
#define TAVIK_TAVIKDIAL_H

#include <QDial>

#include <Tavik/WheelBlocked>
#include <Tavik/tavik_export.h>

/// A dial in the toolkit's look that leaves the wheel alone.
///
/// \code
/// auto *angle = new TavikDial(this);
/// angle->setRange(0, 359);
/// connect(angle, &QDial::valueChanged, gradient, &Gradient::setAngle);
/// \endcode
///
/// The wheel ends at the dial: neither its value changes nor does anything around it scroll.
class TAVIK_EXPORT TavikDial : public WheelBlocked<QDial>
{
    Q_OBJECT

public:
    /// A dial with the toolkit's range, 0 to 99.
    explicit TavikDial(QWidget *parent = nullptr);
};

#endif
