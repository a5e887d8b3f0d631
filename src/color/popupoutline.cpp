#include "color/popupoutline_p.h"

#include <QPainter>

namespace {

constexpr int margin = PopupOutline::shadowRadius;
constexpr int tip = PopupOutline::tipOffset;
constexpr int leftFoot = tip - 10; // of the arrow
constexpr int rightFoot = tip + 10;
constexpr int separatorOffset = 295; // below the box's upper edge

} // namespace

PopupOutline::PopupOutline(const QSize &size, bool arrowUp)
    : m_arrowUp(arrowUp)
{
    const int innerRight = size.width() - margin;
    const int innerHeight = size.height() - 2 * margin;
    const int top = margins().top();
    if (arrowUp) {
        const int bottom = arrowHeight + innerHeight - 2 * margin;
        m_polygon = {{margin, top},     {leftFoot, top},      {tip, margin},   {rightFoot, top},
                     {innerRight, top}, {innerRight, bottom}, {margin, bottom}};
    } else {
        const int bottom = innerHeight - margin;
        m_polygon = {{margin, top},       {innerRight, top},           {innerRight, bottom},
                     {rightFoot, bottom}, {tip, arrowHeight + bottom}, {leftFoot, bottom},
                     {margin, bottom}};
    }
    const int lineY = top + separatorOffset;
    m_separator = QLine(margin, lineY, size.width() - 1 - margin, lineY);
}

bool PopupOutline::hasSide(bool arrowUp) const
{
    return arrowUp == m_arrowUp && !m_polygon.isEmpty();
}

QMargins PopupOutline::margins() const
{
    return {margin, margin + (m_arrowUp ? arrowHeight : 0), margin, margin + (m_arrowUp ? 0 : arrowHeight)};
}

void PopupOutline::paint(QPainter *painter) const
{
    painter->setRenderHint(QPainter::Antialiasing, true);
    painter->setPen(
        QPen(QBrush(QColor(0xd3, 0xd3, 0xd3)), 1.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->setBrush(QColor(Qt::white));
    painter->drawPolygon(m_polygon.constData(), m_polygon.size(), Qt::OddEvenFill);
    painter->setRenderHint(QPainter::Antialiasing, false);
    if (!m_polygon.isEmpty())
        painter->drawLine(m_separator);
}
