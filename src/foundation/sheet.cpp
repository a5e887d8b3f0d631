#include "sheet_p.h"

#include <QWidget>

QString Sheet::join(Table rows)
{
    QString sheet;
    sheet.reserve(1536);
    for (const Row &row : rows) {
        sheet += QLatin1String(row.fragment);
        sheet += row.value;
    }
    return sheet;
}

void Sheet::set(QWidget *widget, Table rows)
{
    // A widget's first sheet is parsed at once, and parsed again when the widget is polished. A blank
    // takes the place of the first, so that the real one is parsed only once.
    if (widget->styleSheet().isEmpty() && !widget->testAttribute(Qt::WA_WState_Polished))
        widget->setStyleSheet(QStringLiteral(" "));
    widget->setStyleSheet(join(rows));
}
