#ifndef TAVIK_SHEET_P_H
#define TAVIK_SHEET_P_H

#include <QString>

#include <initializer_list>
#include <utility>

class QWidget;

namespace Sheet {

/// One row of a style sheet's table: the exact text, and the value that is written after it.
struct Row
{
    Row(const char *text)
        : fragment(text)
    {
    }
    Row(const char *text, const char *constant)
        : fragment(text)
        , value(QLatin1String(constant))
    {
    }
    Row(const char *text, QString field)
        : fragment(text)
        , value(std::move(field))
    {
    }

    const char *fragment;
    QString value;
};

/// A whole style sheet, row by row.
using Table = std::initializer_list<Row>;

/// The rows from top to bottom as one text, with nothing between them. Values are never searched for
/// place markers, so they may hold anything.
QString join(Table rows);

/// Sets a control's own sheet, whether it differs from the present one or not. The first one costs less
/// than by QWidget::setStyleSheet(). Not for combo boxes, scroll areas and item views, whose size hints
/// would change.
void set(QWidget *widget, const QString &sheet);
void set(QWidget *widget, Table rows);

/// Whether the handle of a scroll bar has a line at its right side too.
enum class HandleBorder { AllSides, WithoutRight };

/// The sheet of the vertical scroll bar in combo boxes, scroll areas and image lists.
QString verticalScrollBar(HandleBorder border);

/// Paints what the sheet says of a plain widget's background and border, which the toolkit leaves out for
/// classes derived from QWidget. For use in a paintEvent().
void paintBackground(QWidget *widget);

} // namespace Sheet

#endif
