#include "containers/thumbnail_p.h"

#include <QFileInfo>
#include <QImageReader>

namespace {

/// What a format that is read at a smaller size may hold: its reader still goes through it all.
constexpr qint64 mostScaledPixels = 4 * Thumbnail::mostPixels;

qint64 pixels(const QSize &size)
{
    return qint64(size.width()) * size.height();
}

/// The toolkit completes a name without an extension, so one that does not exist may still be that of a picture.
bool mayBePicture(const QString &fileName)
{
    const QFileInfo file(fileName);
    return file.isFile() || !file.exists();
}

/// PNG says so too, but takes as long, and for some files as much memory, as to read it whole.
bool isScaledWhileRead(const QImageReader &reader)
{
    return reader.supportsOption(QImageIOHandler::ScaledSize) && reader.format() != "png";
}

} // namespace

QImage Thumbnail::read(const QString &fileName, const QSize &size)
{
    if (!mayBePicture(fileName) || pixels(size) > mostPixels)
        return {};
    QImageReader reader(fileName);
    const qint64 count = pixels(reader.size());
    if (count > mostPixels) {
        if (count > mostScaledPixels || !isScaledWhileRead(reader))
            return {};
        reader.setScaledSize(size);
    }
    const QImage image = reader.read();
    return image.isNull() ? image : image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}
