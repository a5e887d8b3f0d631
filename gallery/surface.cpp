#include "surface.h"

#include <QPainter>

#include <Tavik/LenConverter>

Surface::Surface(const QColor &fill, const QColor &border, QWidget *parent)
    : QWidget(parent)
    , m_fill(fill)
    , m_border(border)
{
}

void Surface::paintEvent(QPaintEvent *)
{
    const double radius = LenConverter::iniRemToPx(6);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(m_border);
    painter.setBrush(m_fill);
    // Half a pixel in, a line of one pixel is sharp.
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}
