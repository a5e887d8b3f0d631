#include "access/squarekeys_p.h"

#include "access/squarepoint_p.h"

#include <QKeyEvent>

namespace {

constexpr int pagePercent = 10;

/// A position moved on to the next whole percent of the length, and by at least one pixel.
int moved(int position, int length, int percent)
{
    if (length == 0 || percent == 0)
        return position;
    const int target = qRound((qRound(100.0 * position / length) + percent) * length / 100.0);
    return percent > 0 ? qMax(target, position + 1) : qMin(target, position - 1);
}

} // namespace

SquareKeys::SquareKeys(TavikColorPicker *square)
    : ControlKeys(square)
{
    square->setFocusPolicy(Qt::StrongFocus);
}

bool SquareKeys::press(const QKeyEvent &key)
{
    const bool isShift = key.modifiers() & Qt::ShiftModifier;
    const bool isControl = key.modifiers() & Qt::ControlModifier;
    const auto arrow = isShift ? &SquareKeys::moveBy : &SquareKeys::moveByPercent;
    switch (key.key()) {
    case Qt::Key_Left:
        return (this->*arrow)(-1, 0);
    case Qt::Key_Right:
        return (this->*arrow)(1, 0);
    case Qt::Key_Up:
        return (this->*arrow)(0, -1);
    case Qt::Key_Down:
        return (this->*arrow)(0, 1);
    case Qt::Key_PageUp:
        return isControl ? moveByPercent(pagePercent, 0) : moveByPercent(0, -pagePercent);
    case Qt::Key_PageDown:
        return isControl ? moveByPercent(-pagePercent, 0) : moveByPercent(0, pagePercent);
    case Qt::Key_Home:
        return jump(isControl, false);
    case Qt::Key_End:
        return jump(isControl, true);
    default:
        return false;
    }
}

TavikColorPicker *SquareKeys::square() const
{
    return static_cast<TavikColorPicker *>(control());
}

bool SquareKeys::moveBy(int right, int down)
{
    return pick(SquarePoint::of(square()) + QPoint(right, down));
}

bool SquareKeys::moveByPercent(int right, int down)
{
    const QPoint from = SquarePoint::of(square());
    const QSize size = SquarePoint::extent(square());
    return pick({moved(from.x(), size.width(), right), moved(from.y(), size.height(), down)});
}

bool SquareKeys::jump(bool inValue, bool toMost)
{
    QPoint point = SquarePoint::of(square());
    const QSize size = SquarePoint::extent(square());
    if (inValue)
        point.setY(toMost ? 0 : size.height());
    else
        point.setX(toMost ? size.width() : 0);
    return pick(point);
}

bool SquareKeys::pick(const QPoint &point)
{
    const QSize size = SquarePoint::extent(square());
    square()->updateSelectedColor(qBound(0, point.x(), size.width()), qBound(0, point.y(), size.height()));
    return true;
}
