#include "foundation/tavikselfcheck.h"

#include "foundation/lenconverter.h"

#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QScreen>

namespace {

/// Drawn, because a plugin that is listed may still fail to load.
bool canDrawSvg()
{
    const QByteArray picture = "<svg xmlns='http://www.w3.org/2000/svg' width='1' height='1'/>";
    return !QImage::fromData(picture, "svg").isNull();
}

bool canGrab(QScreen *screen)
{
    const QPoint corner = screen->geometry().topLeft();
    return !screen->grabWindow(0, corner.x(), corner.y(), 1, 1).isNull();
}

} // namespace

QStringList TavikSelfCheck::problems()
{
    QStringList found;
    if (!canDrawSvg())
        found << QStringLiteral(
            "The SVG image format is missing: check marks, arrows and icons are not drawn. "
            "Install the toolkit's SVG plugin.");
    if (LenConverter::rem() == 0)
        found << QStringLiteral("LenConverter::initRem() was not called: every length is 0 pixels.");
    if (QImage(QStringLiteral(":/Color/images/alpha_texture.png")).isNull())
        found << QStringLiteral("The library's resources cannot be read: its pictures are not drawn.");
    QScreen *screen = QGuiApplication::primaryScreen();
    if (!screen)
        found << QStringLiteral(
            "There is no primary screen: lengths cannot be chosen, and popups cannot be placed.");
    else if (!canGrab(screen))
        found << QStringLiteral(
            "The platform gives no picture of the screen: the screen sampler finds no colors.");
    return found;
}
