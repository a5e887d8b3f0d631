#ifndef TAVIK_TESTS_COLORSUPPORT_H
#define TAVIK_TESTS_COLORSUPPORT_H

#include "support.h"

#include <QMouseEvent>

namespace Support {

/// Sends a mouse event straight to a widget, also one for a place outside. A move has no button of its own;
/// `button` is then what is held.
inline void mouse(QWidget *widget, QEvent::Type type, const QPoint &pos, Qt::MouseButton button)
{
    const Qt::MouseButton own = type == QEvent::MouseMove ? Qt::NoButton : button;
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
    QMouseEvent event(type, pos, widget->mapToGlobal(pos), own, held, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

inline void press(QWidget *widget, const QPoint &pos, Qt::MouseButton button = Qt::LeftButton)
{
    mouse(widget, QEvent::MouseButtonPress, pos, button);
}

inline void drag(QWidget *widget, const QPoint &pos, Qt::MouseButton button = Qt::LeftButton)
{
    mouse(widget, QEvent::MouseMove, pos, button);
}

inline void release(QWidget *widget, const QPoint &pos, Qt::MouseButton button = Qt::LeftButton)
{
    mouse(widget, QEvent::MouseButtonRelease, pos, button);
}

/// The colours of a part of a picture: two, where the checkerboard shows through one colour.
inline QSet<QRgb> tones(const QImage &picture, const QRect &part)
{
    QSet<QRgb> found;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x)
            found.insert(picture.pixel(x, y));
    }
    return found;
}

/// Shows a widget and counts how often it is painted from then on.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *widget)
    {
        widget->show();
        QCoreApplication::processEvents();
        widget->installEventFilter(this);
    }

    /// The number of paints since the last call.
    int take()
    {
        QCoreApplication::processEvents();
        return std::exchange(m_paints, 0);
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        m_paints += event->type() == QEvent::Paint;
        return false;
    }

private:
    int m_paints = 0;
};

} // namespace Support

#endif
