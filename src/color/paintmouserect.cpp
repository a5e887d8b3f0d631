#include "color/paintmouserect_p.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>

namespace {

constexpr QSize fixedSize(110, 96);
constexpr int numbersHeight = 35;

// Where the frame's near corner stands from the pointer.
constexpr int besidePointer = 4;
constexpr int belowPointer = 26;

constexpr QColor dim(0, 0, 0, 160);

} // namespace

PaintMouseRect::PaintMouseRect(std::shared_ptr<QPixmap> pixmap, QWidget *parent)
    : QWidget(parent)
    , m_pixmap(std::move(pixmap))
{
    for (QStaticText *text : {&m_rgb, &m_cmy})
        text->setTextFormat(Qt::PlainText);
    // What the pointer does over the frame is ignored here, and so reaches the parent.
    setAttribute(Qt::WA_MouseTracking, true);
    setFixedSize(fixedSize);
    hide();
}

void PaintMouseRect::onPostionChange(int x, int y)
{
    m_x = x;
    m_y = y;
    raise();
    const QSize space = parentWidget()->size();
    QPoint corner(x + besidePointer, y + belowPointer);
    if (corner.y() + height() > space.height())
        corner.setY(y - belowPointer - height());
    if (corner.x() + width() > space.width())
        corner.setX(x - besidePointer - width());
    move(corner); // which repaints the frame, for it is not opaque
}

void PaintMouseRect::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), dim);
    setColor(readColor());
    if (m_color.isValid())
        paintSwatch(painter);
    paintOutline(painter);
    if (m_color.isValid())
        paintNumbers(painter);
}

QColor PaintMouseRect::readColor() const
{
    if (!m_pixmap->rect().contains(m_x, m_y))
        return {};
    return m_pixmap->toImage().pixel(m_x, m_y);
}

void PaintMouseRect::setColor(const QColor &color)
{
    if (color == m_color)
        return;
    m_color = color;
    const int red = color.red();
    const int green = color.green();
    const int blue = color.blue();
    m_rgb.setText(QStringLiteral("RGB:(%1,%2,%3)").arg(red).arg(green).arg(blue));
    m_cmy.setText(QStringLiteral("CMY:(%1,%2,%3)").arg(255 - red).arg(255 - green).arg(255 - blue));
}

void PaintMouseRect::paintSwatch(QPainter &painter) const
{
    painter.fillRect(0, 0, width(), height() - numbersHeight, m_color);
}

void PaintMouseRect::paintOutline(QPainter &painter) const
{
    painter.setPen(QPen(Qt::darkGreen, 1.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.drawRect(QRect(0, 0, width() - 1, height() - 1));
}

void PaintMouseRect::paintNumbers(QPainter &painter) const
{
    painter.setPen(Qt::white);
    const qreal ascent = QFontMetricsF(painter.font()).ascent();
    painter.drawStaticText(QPointF(6, height() - 24 - ascent), m_rgb);
    painter.drawStaticText(QPointF(6, height() - 7 - ascent), m_cmy);
}
