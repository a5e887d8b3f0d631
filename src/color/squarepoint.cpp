#include "color/squarepoint_p.h"

#include "color/tavikcolorpicker.h"

SquarePoint::SquarePoint(TavikColorPicker *square)
    : m_square(square)
{
}

QSize SquarePoint::extent() const
{
    return {qMax(0, m_square->m_width), qMax(0, m_square->m_height)};
}

QPoint SquarePoint::pos() const
{
    const QColor color = m_square->currentColor();
    const QSize size = extent();
    return {qRound(color.saturationF() * size.width()), qRound((1.0 - color.valueF()) * size.height())};
}

void SquarePoint::moveTo(const QPoint &pos)
{
    const QSize size = extent();
    m_square->updateSelectedColor(qBound(0, pos.x(), size.width()), qBound(0, pos.y(), size.height()));
}

int SquarePoint::count() const
{
    return 1;
}

QRect SquarePoint::rect(int) const
{
    return m_square->circle().toAlignedRect();
}

QString SquarePoint::name(int) const
{
    return m_square->accessibleName();
}

void SquarePoint::follow(QObject *context, const std::function<void(int)> &changed) const
{
    QObject::connect(m_square, &TavikColorPicker::colorChanged, context, [=] { changed(0); });
}
