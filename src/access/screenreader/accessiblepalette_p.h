#ifndef TAVIK_ACCESSIBLEPALETTE_P_H
#define TAVIK_ACCESSIBLEPALETTE_P_H

#include "access/screenreader/accessibleparts_p.h"

/// Tells the palette as a table of colours; its last place is the add button. Nothing in it can be selected:
/// a cell is pressed.
class AccessiblePalette : public AccessibleParts, public QAccessibleTableInterface
{
public:
    AccessiblePalette(QWidget *well, std::unique_ptr<ControlParts> cells);

    void *interface_cast(QAccessible::InterfaceType type) override;

    QAccessibleInterface *caption() const override;
    QAccessibleInterface *summary() const override;
    QAccessibleInterface *cellAt(int row, int column) const override;
    int selectedCellCount() const override;
    QList<QAccessibleInterface *> selectedCells() const override;
    QString columnDescription(int column) const override;
    QString rowDescription(int row) const override;
    int selectedColumnCount() const override;
    int selectedRowCount() const override;
    int columnCount() const override;
    int rowCount() const override;
    QList<int> selectedColumns() const override;
    QList<int> selectedRows() const override;
    bool isColumnSelected(int column) const override;
    bool isRowSelected(int row) const override;
    bool selectRow(int row) override;
    bool selectColumn(int column) override;
    bool unselectRow(int row) override;
    bool unselectColumn(int column) override;
    void modelChange(QAccessibleTableModelChangeEvent *event) override;

protected:
    QAccessibleInterface *makePart(int part) const override;
};

#endif
