#ifndef TAVIK_ACCESSIBLECELL_P_H
#define TAVIK_ACCESSIBLECELL_P_H

#include "access/screenreader/accessiblepart_p.h"

/// Tells a colour of the palette as a cell of its table.
class AccessibleCell : public AccessiblePart, public QAccessibleTableCellInterface
{
public:
    using AccessiblePart::AccessiblePart;

    void *interface_cast(QAccessible::InterfaceType type) override;
    QAccessible::Role role() const override;

    bool isSelected() const override;
    QList<QAccessibleInterface *> columnHeaderCells() const override;
    QList<QAccessibleInterface *> rowHeaderCells() const override;
    int columnIndex() const override;
    int rowIndex() const override;
    int columnExtent() const override;
    int rowExtent() const override;
    QAccessibleInterface *table() const override;
};

#endif
