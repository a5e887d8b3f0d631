#include "access/screenreader/accessiblecell_p.h"

#include "access/screenreader/accessibleparts_p.h"

void *AccessibleCell::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableCellInterface)
        return static_cast<QAccessibleTableCellInterface *>(this);
    return AccessiblePart::interface_cast(type);
}

QAccessible::Role AccessibleCell::role() const
{
    return QAccessible::Cell;
}

bool AccessibleCell::isSelected() const
{
    return false;
}

QList<QAccessibleInterface *> AccessibleCell::columnHeaderCells() const
{
    return {};
}

QList<QAccessibleInterface *> AccessibleCell::rowHeaderCells() const
{
    return {};
}

int AccessibleCell::columnIndex() const
{
    return m_part % m_owner->parts().columns();
}

int AccessibleCell::rowIndex() const
{
    return m_part / m_owner->parts().columns();
}

int AccessibleCell::columnExtent() const
{
    return 1;
}

int AccessibleCell::rowExtent() const
{
    return 1;
}

QAccessibleInterface *AccessibleCell::table() const
{
    return m_owner;
}
