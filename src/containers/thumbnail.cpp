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

/// Whether a file is a JPEG of one scan: one of several, as progressive ones are, needs all its memory also at a
/// smaller size.
bool isJpegOfOneScan(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly) || file.read(2) != QByteArray("\xff\xd8"))
        return false;
    int components = 0;
    for (;;) {
        const QByteArray head =
            file.read(4); // 0xff, the kind of segment, and its length with these two bytes
        if (head.size() < 4 || quint8(head.at(0)) != 0xff)
            return false;
        const quint8 kind = quint8(head.at(1));
        const bool isFrame = kind >= 0xc0 && kind <= 0xcf && kind != 0xc4 && kind != 0xc8 && kind != 0xcc;
        const int length = quint8(head.at(2)) * 256 + quint8(head.at(3)) - 2;
        const QByteArray segment = file.read(std::max(0, length));
        if (segment.size() != length || (isFrame && (kind > 0xc1 || length < 6)))
            return false;
        if (isFrame)
            components = quint8(segment.at(5));
        else if (kind == 0xda) // the first scan, which begins with how many components it has
            return length > 0 && quint8(segment.at(0)) == components;
    }
}

bool isScaledWhileRead(const QImageReader &reader)
{
    const QByteArray format = reader.format();
    if (format == "jpeg" || format == "jpg")
        return isJpegOfOneScan(reader.fileName());
    // PNG says so too, but takes as long, and for some files as much memory, as to read it whole.
    return format != "png" && reader.supportsOption(QImageIOHandler::ScaledSize);
}

/// A picture of 64 bits a pixel takes twice the memory of an ordinary one.
qint64 weight(const QImageReader &reader)
{
    const int bits = QImage::toPixelFormat(reader.imageFormat()).bitsPerPixel();
    return pixels(reader.size()) * std::max(1, bits / 32);
}

/// What is read whole: what the largest screens have, and no more than Qt 6 lets its readers take.
qint64 mostWholePixels()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    const qint64 megabytes = QImageReader::allocationLimit(); // 0 for none
    if (megabytes > 0)
        return std::min(Thumbnail::mostPixels, megabytes * 1024 * 1024 / 4);
#endif
    return Thumbnail::mostPixels;
}

} // namespace

QImage Thumbnail::read(const QString &fileName, const QSize &size)
{
    if (!mayBePicture(fileName) || pixels(size) > mostPixels)
        return {};
    QImageReader reader(fileName);
    const qint64 count = weight(reader);
    if (count > mostWholePixels()) {
        if (count > mostScaledPixels || !isScaledWhileRead(reader))
            return {};
        reader.setScaledSize(size);
    }
    const QImage image = reader.read();
    return image.isNull() ? image : image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}
