#ifndef POSTER_LANDSCAPES_H
#define POSTER_LANDSCAPES_H

#include <QImage>
#include <QStringList>

/// The photographs that the application has inside: landscapes, painted by code at any size.
namespace Landscapes {

/// Their names: "dawn", "sea" and so on.
QStringList names();

/// A name as the user reads it.
QString title(const QString &name);

/// A landscape that fills a size in pixels; null if there is none of this name.
QImage paint(const QString &name, const QSize &size);

} // namespace Landscapes

#endif
