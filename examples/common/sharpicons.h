#ifndef COMMON_SHARPICONS_H
#define COMMON_SHARPICONS_H

#include <QCoreApplication>

/// Lets icons be drawn at the scale of the screen, as Qt 6 draws them unasked. At scale 1 nothing changes.
inline void drawIconsSharply()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
}

#endif
