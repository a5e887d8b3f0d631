#ifndef TAVIK_THUMBNAIL_P_H
#define TAVIK_THUMBNAIL_P_H

#include <QImage>

/// Small pictures of image files, read without holding the application up for long.
namespace Thumbnail {

/// A file's picture stretched to a size in pixels, null where there is none.
///
/// Refused, because reading them would take for ever or more memory than there is: what is no regular file, as a
/// pipe; sizes that no screen can show; and files of more than mostPixels, unless their format can be read at the
/// size that is shown.
QImage read(const QString &fileName, const QSize &size);

/// More than twice what the largest screens have.
constexpr qint64 mostPixels = 64 * 1024 * 1024;

} // namespace Thumbnail

#endif
