#include "color/popupplacement_p.h"

#include "color/popupoutline_p.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace {

/// No screen reaches as far as that, so a point beyond is out of sight either way.
int withinWidgets(int coordinate)
{
    return qBound(-QWIDGETSIZE_MAX, coordinate, QWIDGETSIZE_MAX);
}

} // namespace

PopupPlacement::PopupPlacement(const QSize &size, const QPoint &anchor)
{
    const int x = withinWidgets(anchor.x());
    const int y = withinWidgets(anchor.y());
    const QScreen *screen = QGuiApplication::primaryScreen();
    const int screenHeight = screen ? screen->size().height() : 0;
    isBelow = size.height() - 1 + PopupOutline::shadowRadius + 6 < screenHeight - y;
    const int above = y - size.height() - PopupOutline::arrowHeight + PopupOutline::shadowRadius;
    corner = {x - PopupOutline::tipOffset, isBelow ? y : above};
}
