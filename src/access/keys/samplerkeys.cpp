#include "access/keys/samplerkeys_p.h"

#include "color/screenshot_p.h"

#include <QCursor>
#include <QKeyEvent>

namespace {

constexpr int farStep = 10; // pixels

QPoint inside(const QWidget *window, const QPoint &pos)
{
    return {qBound(0, pos.x(), window->width() - 1), qBound(0, pos.y(), window->height() - 1)};
}

} // namespace

SamplerKeys::SamplerKeys(Screenshot *sampler)
    : QObject(sampler)
    , m_pos(inside(sampler, sampler->mapFromGlobal(Screenshot::pointer()))) // it may be on another screen
{
    sampler->installEventFilter(this);
    sampler->activateWindow();
    // It was placed as if its screen began where the desktop does.
    sampler->moveTo(m_pos);
}

bool SamplerKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != parent())
        return false;
    if (event->type() == QEvent::MouseMove)
        m_pos = static_cast<QMouseEvent *>(event)->pos();
    return event->type() == QEvent::KeyPress && press(*static_cast<QKeyEvent *>(event));
}

Screenshot *SamplerKeys::sampler() const
{
    return static_cast<Screenshot *>(parent());
}

bool SamplerKeys::press(const QKeyEvent &key)
{
    const bool isFar = key.modifiers() & Qt::ShiftModifier;
    switch (key.key()) {
    case Qt::Key_Left:
        return moveBy(-1, 0, isFar);
    case Qt::Key_Right:
        return moveBy(1, 0, isFar);
    case Qt::Key_Up:
        return moveBy(0, -1, isFar);
    case Qt::Key_Down:
        return moveBy(0, 1, isFar);
    case Qt::Key_PageUp:
        return moveBy(0, -1, true);
    case Qt::Key_PageDown:
        return moveBy(0, 1, true);
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        sampler()->pick();
        return true;
    default:
        return false;
    }
}

bool SamplerKeys::moveBy(int right, int down, bool isFar)
{
    m_pos = inside(sampler(), m_pos + QPoint(right, down) * (isFar ? farStep : 1));
    QCursor::setPos(sampler()->mapToGlobal(m_pos));
    // Not every platform lets an application move the pointer.
    sampler()->moveTo(m_pos);
    return true;
}
