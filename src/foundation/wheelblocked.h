#ifndef TAVIK_WHEELBLOCKED_H
#define TAVIK_WHEELBLOCKED_H

#include <QWheelEvent>

/// The wheel ends here: a layer between a toolkit class and ours whose value a passing wheel must not change.
///
/// Neither does anything around the control scroll.
/// \code
/// class TavikDial : public WheelBlocked<QDial>
/// \endcode
template <class Base>
class WheelBlocked : public Base
{
public:
    using Base::Base;

protected:
    /// Takes the event, which comes ignored, and does nothing.
    void wheelEvent(QWheelEvent *event) override { event->accept(); }
};

#endif
