#include "access/keys/squarekeys_p.h"

#include "color/squarepoint_p.h"
#include "color/tavikcolorpicker.h"

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

SquareKeys::SquareKeys(TavikColorPicker *square, std::unique_ptr<SquarePoint> point)
    : ControlKeys(square)
    , m_point(std::move(point))
{
    square->setFocusPolicy(Qt::StrongFocus);
}

SquareKeys::~SquareKeys() = default;

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

bool SquareKeys::moveBy(int right, int down)
{
    return moveTo(m_point->pos() + QPoint(right, down));
}

bool SquareKeys::moveByPercent(int right, int down)
{
    const QPoint from = m_point->pos();
    const QSize size = m_point->extent();
    return moveTo({moved(from.x(), size.width(), right), moved(from.y(), size.height(), down)});
}

bool SquareKeys::jump(bool inValue, bool toMost)
{
    QPoint pos = m_point->pos();
    const QSize size = m_point->extent();
    if (inValue)
        pos.setY(toMost ? 0 : size.height());
    else
        pos.setX(toMost ? size.width() : 0);
    return moveTo(pos);
}

bool SquareKeys::moveTo(const QPoint &pos)
{
    m_point->moveTo(pos);
    return true;
}
