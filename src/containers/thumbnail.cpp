#include "containers/thumbnail_p.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPixelFormat>

#include <algorithm>

namespace {

/// What a format that is read at a smaller size may hold: its reader still goes through it all.
constexpr qint64 mostScaledPixels = 4 * Thumbnail::mostPixels;

qint64 pixels(const QSize &size)
{
    return qint64(size.width()) * size.height();
}

bool isNoFile(const QString &name)
{
    const QFileInfo file(name);
    return file.exists() && !file.isFile();
}

/// The toolkit completes a name without an extension: what that leads to counts as well.
bool mayBePicture(const QString &fileName)
{
    if (QFileInfo::exists(fileName))
        return !isNoFile(fileName);
    const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    return std::none_of(formats.begin(), formats.end(), [&](const QByteArray &format) {
        return isNoFile(fileName + QLatin1Char('.') + QString::fromLatin1(format));
    });
}

/// Whether a file is a JPEG that is not progressive: one that is needs all its memory also at a smaller size.
bool isSequentialJpeg(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly) || file.read(2) != QByteArray("\xff\xd8"))
        return false;
    for (;;) {
        const QByteArray head =
            file.read(4); // 0xff, the kind of segment, and its length with these two bytes
        if (head.size() < 4 || quint8(head.at(0)) != 0xff)
            return false;
        const quint8 kind = quint8(head.at(1));
        const bool isFrame = kind >= 0xc0 && kind <= 0xcf && kind != 0xc4 && kind != 0xc8 && kind != 0xcc;
        if (isFrame)
            return kind <= 0xc1;
        if (!file.seek(file.pos() + quint8(head.at(2)) * 256 + quint8(head.at(3)) - 2))
            return false;
    }
}

bool isScaledWhileRead(const QImageReader &reader)
{
    const QByteArray format = reader.format();
    if (format == "jpeg" || format == "jpg")
        return isSequentialJpeg(reader.fileName());
    // PNG says so too, but takes as long, and for some files as much memory, as to read it whole.
    return format != "png" && reader.supportsOption(QImageIOHandler::ScaledSize);
}

/// A picture of 64 bits a pixel takes twice the memory of an ordinary one.
qint64 weight(const QImageReader &reader)
{
    const int bits = QImage::toPixelFormat(reader.imageFormat()).bitsPerPixel();
    return pixels(reader.size()) * std::max(1, bits / 32);
}

} // namespace

QImage Thumbnail::read(const QString &fileName, const QSize &size)
{
    if (!mayBePicture(fileName) || pixels(size) > mostPixels)
        return {};
    QImageReader reader(fileName);
    const qint64 count = weight(reader);
    if (count > mostPixels) {
        if (count > mostScaledPixels || !isScaledWhileRead(reader))
            return {};
        reader.setScaledSize(size);
    }
    const QImage image = reader.read();
    return image.isNull() ? image : image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}
