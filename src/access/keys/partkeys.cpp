#include "access/keys/partkeys_p.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QWidget>

namespace {

constexpr int pageStep = 10;

} // namespace

PartKeys::PartKeys(QWidget *control, std::unique_ptr<ControlParts> parts)
    : ControlKeys(control)
    , m_parts(std::move(parts))
    , m_spot(new QWidget(control))
{
    m_spot->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_spot->setAttribute(
        Qt::WA_NoSystemBackground); // a sheet for every QWidget would paint it over the part
    m_spot->show();
    placeSpot();
    m_parts->follow(this, [this](int) { placeSpot(); });
    control->setFocusPolicy(Qt::StrongFocus);
    for (int part = 0; part < m_parts->count(); ++part) {
        if (QWidget *own = m_parts->widget(part))
            own->setFocusPolicy(Qt::NoFocus);
    }
}

PartKeys *PartKeys::of(const QWidget *control)
{
    return control->findChild<PartKeys *>(QString(), Qt::FindDirectChildrenOnly);
}

int PartKeys::current() const
{
    return m_current;
}

QWidget *PartKeys::marked() const
{
    return m_spot;
}

bool PartKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == control() && event->type() == QEvent::MouseButtonPress)
        moveToPartAt(static_cast<QMouseEvent *>(event)->pos());
    return ControlKeys::eventFilter(watched, event);
}

bool PartKeys::press(const QKeyEvent &key)
{
    if (m_parts->columns() == 0 && moveInRow(key.key()))
        return true;
    if (m_parts->hasValue(m_current))
        return moveHandle(key.key());
    return pressPart(key) || (m_parts->columns() > 0 && moveInGrid(key.key()));
}

void PartKeys::enter(const QFocusEvent &event)
{
    if (m_parts->columns() > 0)
        return;
    if (event.reason() == Qt::TabFocusReason)
        moveTo(0);
    else if (event.reason() == Qt::BacktabFocusReason)
        moveTo(m_parts->count() - 1);
}

bool PartKeys::pressPart(const QKeyEvent &key)
{
    if (key.key() != Qt::Key_Space && key.key() != Qt::Key_Return && key.key() != Qt::Key_Enter)
        return false;
    if (!key.isAutoRepeat())
        m_parts->press(m_current);
    return true;
}

bool PartKeys::moveHandle(int key)
{
    const int value = m_parts->value(m_current);
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Down:
        m_parts->setValue(m_current, value - 1);
        return true;
    case Qt::Key_Right:
    case Qt::Key_Up:
        m_parts->setValue(m_current, value + 1);
        return true;
    case Qt::Key_PageDown:
        m_parts->setValue(m_current, value - pageStep);
        return true;
    case Qt::Key_PageUp:
        m_parts->setValue(m_current, value + pageStep);
        return true;
    case Qt::Key_Home:
        m_parts->setValue(m_current, 0);
        return true;
    case Qt::Key_End:
        m_parts->setValue(m_current, 100);
        return true;
    default:
        return false;
    }
}

bool PartKeys::moveInGrid(int key)
{
    const int columns = m_parts->columns();
    const int column = m_current % columns;
    const int rowStart = m_current - column;
    switch (key) {
    case Qt::Key_Left:
        return moveTo(qMax(m_current - 1, rowStart));
    case Qt::Key_Right:
        return moveTo(qMin(m_current + 1, rowStart + columns - 1));
    case Qt::Key_Up:
        return moveTo(m_current >= columns ? m_current - columns : m_current);
    case Qt::Key_Down:
        return moveTo(m_current + columns < m_parts->count() ? m_current + columns : m_current);
    case Qt::Key_Home:
        return moveTo(rowStart);
    case Qt::Key_End:
        return moveTo(rowStart + columns - 1);
    default:
        return false;
    }
}

/// Tab leaves the control from its last part, and Shift+Tab from its first.
bool PartKeys::moveInRow(int key)
{
    if (key == Qt::Key_Tab && m_current + 1 < m_parts->count())
        return moveTo(m_current + 1);
    if (key == Qt::Key_Backtab && m_current > 0)
        return moveTo(m_current - 1);
    return false;
}

bool PartKeys::moveTo(int part)
{
    m_current = part;
    placeSpot();
    if (control()->hasFocus()) {
        QAccessibleEvent event(control(), QAccessible::Focus);
        event.setChild(part);
        QAccessible::updateAccessibility(&event);
    }
    return true;
}

void PartKeys::moveToPartAt(const QPoint &pos)
{
    for (int part = 0; part < m_parts->count(); ++part) {
        if (m_parts->rect(part).contains(pos)) {
            moveTo(part);
            return;
        }
    }
}

void PartKeys::placeSpot()
{
    m_spot->setGeometry(m_parts->rect(m_current));
}
