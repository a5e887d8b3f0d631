#ifndef TAVIK_POPUPPLACEMENT_P_H
#define TAVIK_POPUPPLACEMENT_P_H

#include <QPoint>

class QSize;

/// Where a popup stands that points to something on the screen.
struct PopupPlacement
{
    /// The place of a popup of a size at a point, in global pixels: below it, or above where the primary screen has no
    /// room below.
    PopupPlacement(const QSize &size, const QPoint &anchor);

    bool isBelow;
    QPoint corner; // the upper left one
};

#endif
