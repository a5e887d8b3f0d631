#ifndef TAVIK_SWATCH_P_H
#define TAVIK_SWATCH_P_H

#include <QPainter>
#include <QPixmap>

namespace Swatch {

/// A brush with the checkerboard that shows through a colour with alpha.
inline QBrush texture()
{
    return QPixmap(QStringLiteral(":/Color/images/alpha_texture.png"));
}

/// Draws a rectangle twice with the painter's pen: filled with the texture, and with what lies over it.
inline void paint(QPainter &painter, const QRect &rect, const QBrush &texture, const QBrush &fill)
{
    painter.setBrush(texture);
    painter.drawRect(rect);
    painter.setBrush(fill);
    painter.drawRect(rect);
}

} // namespace Swatch

#endif
