#include "foundation/sheet_p.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>
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

void Sheet::set(QWidget *widget, const QString &sheet)
{
    // A widget's first sheet is parsed at once, and parsed again when the widget is polished. A blank
    // takes the place of the first, so that the real one is parsed only once.
    if (widget->styleSheet().isEmpty() && !widget->testAttribute(Qt::WA_WState_Polished))
        widget->setStyleSheet(QStringLiteral(" "));
    widget->setStyleSheet(sheet);
}

void Sheet::set(QWidget *widget, Table rows)
{
    set(widget, join(rows));
}

QString Sheet::verticalScrollBar(HandleBorder border)
{
    const char *const afterBorder =
        border == HandleBorder::WithoutRight
            ? ";border-right-width: 0;}QScrollBar::handle:vertical:hover{background: "
            : ";}QScrollBar::handle:vertical:hover{background: ";
    return join({
        {"QScrollBar:vertical{ border: none;background: ", "#00000000"},
        {";margin: 0px;padding: 0px;width: 0.83em;}QScrollBar::handle:vertical{min-height: "
         "20px;background: ",
         "#ffffff"},
        {";border: 1px solid ", "#d3d3d3"},
        {afterBorder, "#f7f7f7"},
        {";}QScrollBar::handle:vertical:pressed{background: ", "#e8e8e8"},
        {";}QScrollBar::up-arrow:vertical, QScrollBar::down-arrow:vertical, QScrollBar::add-page:vertical, "
         "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical,QScrollBar::sub-page:vertical "
         "{width: 0px;height: 0px;}"},
    });
}

void Sheet::paintBackground(QWidget *widget)
{
    QStyleOption option;
    option.initFrom(widget);
    QPainter painter(widget);
    widget->style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, widget);
}
