#include "access/screenreader/accessibleparts_p.h"

#include "access/keys/partkeys_p.h"
#include "access/screenreader/accessiblepart_p.h"

#include <QWidget>

AccessibleParts::AccessibleParts(QWidget *control, std::unique_ptr<ControlParts> parts,
                                 QAccessible::Role role)
    : QAccessibleWidget(control, role)
    , m_parts(std::move(parts))
{
    m_parts->follow(&m_context, [this](int part) {
        QAccessibleValueChangeEvent event(child(part), m_parts->value(part));
        QAccessible::updateAccessibility(&event);
    });
}

AccessibleParts::~AccessibleParts()
{
    for (const QAccessible::Id id : qAsConst(m_ids)) {
        if (id)
            QAccessible::deleteAccessibleInterface(id);
    }
}

ControlParts &AccessibleParts::parts() const
{
    return *m_parts;
}

int AccessibleParts::focusedPart() const
{
    const auto *keys = PartKeys::of(widget());
    return keys && widget()->hasFocus() ? keys->current() : -1;
}

int AccessibleParts::childCount() const
{
    return m_parts->count();
}

QAccessibleInterface *AccessibleParts::child(int index) const
{
    if (index < 0 || index >= m_parts->count())
        return nullptr;
    if (QWidget *own = m_parts->widget(index))
        return QAccessible::queryAccessibleInterface(own);
    if (m_ids.size() <= index)
        m_ids.resize(index + 1);
    QAccessible::Id &id = m_ids[index];
    if (!id)
        id = QAccessible::registerAccessibleInterface(makePart(index));
    return QAccessible::accessibleInterface(id);
}

QAccessibleInterface *AccessibleParts::childAt(int x, int y) const
{
    const QPoint pos = widget()->mapFromGlobal(QPoint(x, y));
    for (int part = 0; part < m_parts->count(); ++part) {
        if (m_parts->rect(part).contains(pos))
            return child(part);
    }
    return nullptr;
}

QAccessibleInterface *AccessibleParts::focusChild() const
{
    const int part = focusedPart();
    return part < 0 ? QAccessibleWidget::focusChild() : child(part);
}

int AccessibleParts::indexOfChild(const QAccessibleInterface *wanted) const
{
    for (int part = 0; part < m_parts->count(); ++part) {
        if (child(part) == wanted)
            return part;
    }
    return -1;
}

QAccessibleInterface *AccessibleParts::makePart(int part) const
{
    return new AccessiblePart(const_cast<AccessibleParts *>(this), part);
}
