#include "containers/tavikscrollarea.h"

#include "foundation/lenconverter.h"
#include "foundation/sheet_p.h"

#include <QScrollBar>

#include <cmath>

TavikScrollArea::TavikScrollArea(const QString &borderWidth, const QString &borderColor,
                                 const QString &bgColor, QWidget *parent)
    : QScrollArea(parent)
{
    setStyleSheet(Sheet::join({
        {"TavikScrollArea {border: ", borderWidth},
        {"px solid ", borderColor},
        {";background-color: ", bgColor},
        {";}"},
    }));
    verticalScrollBar()->setStyleSheet(Sheet::verticalScrollBar(Sheet::HandleBorder::WithoutRight));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

TavikScrollArea::TavikScrollArea(QWidget *parent)
    : TavikScrollArea(QStringLiteral("1"), QStringLiteral("#d3d3d3"), QStringLiteral("#ffffff"), parent)
{
}

void TavikScrollArea::setRemWidth(double rem)
{
    setFixedWidth(LenConverter::remToPx(rem));
}

void TavikScrollArea::setRemHeight(double height)
{
    setFixedHeight(LenConverter::round(std::trunc(height)));
}

void TavikScrollArea::setRemSz(double remWidth, double height)
{
    setRemWidth(remWidth);
    setRemHeight(height);
}
