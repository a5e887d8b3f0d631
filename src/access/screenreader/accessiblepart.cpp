#include "access/screenreader/accessiblepart_p.h"

#include "access/screenreader/accessibleparts_p.h"

#include <QWidget>

namespace {

QWidget *controlOf(const AccessibleParts *owner)
{
    return static_cast<QWidget *>(owner->object());
}

} // namespace

AccessiblePart::AccessiblePart(AccessibleParts *owner, int part)
    : m_owner(owner)
    , m_part(part)
{
}

void *AccessiblePart::interface_cast(QAccessible::InterfaceType type)
{
    const bool hasValue = m_owner->parts().hasValue(m_part);
    if (type == QAccessible::ValueInterface && hasValue)
        return static_cast<QAccessibleValueInterface *>(this);
    if (type == QAccessible::ActionInterface && !hasValue)
        return static_cast<QAccessibleActionInterface *>(this);
    return nullptr;
}

bool AccessiblePart::isValid() const
{
    return m_owner->isValid();
}

QObject *AccessiblePart::object() const
{
    return nullptr;
}

QWindow *AccessiblePart::window() const
{
    return m_owner->window();
}

QAccessibleInterface *AccessiblePart::parent() const
{
    return m_owner;
}

QAccessibleInterface *AccessiblePart::child(int) const
{
    return nullptr;
}

QAccessibleInterface *AccessiblePart::childAt(int, int) const
{
    return nullptr;
}

int AccessiblePart::childCount() const
{
    return 0;
}

int AccessiblePart::indexOfChild(const QAccessibleInterface *) const
{
    return -1;
}

QRect AccessiblePart::rect() const
{
    const QRect rect = m_owner->parts().rect(m_part);
    return {controlOf(m_owner)->mapToGlobal(rect.topLeft()), rect.size()};
}

QAccessible::Role AccessiblePart::role() const
{
    return m_owner->parts().hasValue(m_part) ? QAccessible::Slider : QAccessible::Button;
}

QAccessible::State AccessiblePart::state() const
{
    const QAccessible::State control = m_owner->state();
    QAccessible::State state;
    state.disabled = control.disabled;
    state.invisible = control.invisible;
    state.offscreen = control.offscreen;
    state.focusable = control.focusable;
    state.focused = m_owner->focusedPart() == m_part;
    return state;
}

QString AccessiblePart::text(QAccessible::Text type) const
{
    if (type == QAccessible::Name)
        return m_owner->parts().name(m_part);
    if (type == QAccessible::Value && m_owner->parts().hasValue(m_part))
        return currentValue().toString();
    return {};
}

void AccessiblePart::setText(QAccessible::Text, const QString &)
{
}

QStringList AccessiblePart::actionNames() const
{
    return {pressAction()};
}

void AccessiblePart::doAction(const QString &name)
{
    if (name == pressAction() && controlOf(m_owner)->isEnabled())
        m_owner->parts().press(m_part);
}

QStringList AccessiblePart::keyBindingsForAction(const QString &) const
{
    return {};
}

QVariant AccessiblePart::currentValue() const
{
    return m_owner->parts().value(m_part);
}

void AccessiblePart::setCurrentValue(const QVariant &value)
{
    if (controlOf(m_owner)->isEnabled())
        m_owner->parts().setValue(m_part, value.toInt());
}

QVariant AccessiblePart::maximumValue() const
{
    return 100;
}

QVariant AccessiblePart::minimumValue() const
{
    return 0;
}

QVariant AccessiblePart::minimumStepSize() const
{
    return 1;
}
