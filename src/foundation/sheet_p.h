#ifndef TAVIK_SHEET_P_H
#define TAVIK_SHEET_P_H

#include <QString>

#include <initializer_list>

class QWidget;

namespace Sheet {

/// One row of a style sheet's table: the exact text, and the value that is written after it.
struct Row
{
    const char *fragment;
    QString value = {};
};

/// A whole style sheet, row by row.
using Table = std::initializer_list<Row>;

/// The rows from top to bottom as one text, with nothing between them. Values are never searched for
/// place markers, so they may hold anything.
QString join(Table rows);

/// Joins the rows and sets them on the widget, whether the sheet differs from the present one or not.
void set(QWidget *widget, Table rows);

} // namespace Sheet

#endif
