#include "access/screenreader/accessiblepalette_p.h"

#include "access/screenreader/accessiblecell_p.h"

AccessiblePalette::AccessiblePalette(QWidget *well, std::unique_ptr<ControlParts> cells)
    : AccessibleParts(well, std::move(cells), QAccessible::Table)
{
}

void *AccessiblePalette::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableInterface)
        return static_cast<QAccessibleTableInterface *>(this);
    return AccessibleParts::interface_cast(type);
}

QAccessibleInterface *AccessiblePalette::makePart(int part) const
{
    return new AccessibleCell(const_cast<AccessiblePalette *>(this), part);
}

QAccessibleInterface *AccessiblePalette::cellAt(int row, int column) const
{
    const bool isInside = row >= 0 && row < rowCount() && column >= 0 && column < columnCount();
    return isInside ? child(row * columnCount() + column) : nullptr;
}

int AccessiblePalette::columnCount() const
{
    return parts().columns();
}

int AccessiblePalette::rowCount() const
{
    return parts().count() / parts().columns();
}

// ---- What this table doesn't have ----

QAccessibleInterface *AccessiblePalette::caption() const
{
    return nullptr;
}

QAccessibleInterface *AccessiblePalette::summary() const
{
    return nullptr;
}

int AccessiblePalette::selectedCellCount() const
{
    return 0;
}

QList<QAccessibleInterface *> AccessiblePalette::selectedCells() const
{
    return {};
}

QString AccessiblePalette::columnDescription(int) const
{
    return {};
}

QString AccessiblePalette::rowDescription(int) const
{
    return {};
}

int AccessiblePalette::selectedColumnCount() const
{
    return 0;
}

int AccessiblePalette::selectedRowCount() const
{
    return 0;
}

QList<int> AccessiblePalette::selectedColumns() const
{
    return {};
}

QList<int> AccessiblePalette::selectedRows() const
{
    return {};
}

bool AccessiblePalette::isColumnSelected(int) const
{
    return false;
}

bool AccessiblePalette::isRowSelected(int) const
{
    return false;
}

bool AccessiblePalette::selectRow(int)
{
    return false;
}

bool AccessiblePalette::selectColumn(int)
{
    return false;
}

bool AccessiblePalette::unselectRow(int)
{
    return false;
}

bool AccessiblePalette::unselectColumn(int)
{
    return false;
}

void AccessiblePalette::modelChange(QAccessibleTableModelChangeEvent *)
{
}
