#include "photograph.h"

#include "landscapes.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QPixelFormat>

namespace {

const QLatin1String ownPrefix("own:");

// What a photograph may hold in memory: four bytes each, or half as many of eight.
constexpr qint64 mostMegapixels = 128;

} // namespace

Photograph::Photograph(const QString &name)
    : m_name(name)
{
    if (isOwn(name)) {
        m_landscape = name.mid(ownPrefix.size());
        if (!Landscapes::names().contains(m_landscape)) {
            m_error = tr("There is no photograph \"%1\".").arg(m_landscape);
            m_landscape.clear();
        }
        return;
    }
    const QString reason = read(name);
    if (!reason.isEmpty())
        m_error = tr("The photograph %1 can't be read: %2.").arg(QDir::toNativeSeparators(name), reason);
}

/// Returns why it can't be read.
QString Photograph::read(const QString &file)
{
    const QFileInfo info(file);
    if (!info.isFile()) // a pipe would never end, and the toolkit completes a name that there is not
        return info.exists() ? tr("it is no file") : tr("there is no such file");
    QImageReader reader(file);
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    QImageReader::setAllocationLimit(0); // we have a limit of our own
#endif
    reader.setAutoTransform(true); // a camera held upright says so in its file
    const QSize size = reader.size();
    const int bits = QImage::toPixelFormat(reader.imageFormat()).bitsPerPixel();
    if (qint64(size.width()) * size.height() * qMax(1, bits / 32) > mostMegapixels * 1000000)
        return tr("it has more than %1 megapixels").arg(mostMegapixels);
    m_image = reader.read();
    return m_image.isNull() ? reader.errorString() : QString();
}

QString Photograph::title(const QString &name)
{
    return isOwn(name) ? Landscapes::title(name.mid(ownPrefix.size())) : QFileInfo(name).fileName();
}

bool Photograph::isOwn(const QString &name)
{
    return name.startsWith(ownPrefix);
}

QStringList Photograph::ownNames()
{
    QStringList names = Landscapes::names();
    for (QString &name : names)
        name.prepend(ownPrefix);
    return names;
}

QImage Photograph::cover(const QSize &size) const
{
    if (isNull() || size.isEmpty())
        return {};
    if (!m_landscape.isEmpty())
        return Landscapes::paint(m_landscape, size);
    // Cut first: scaled whole, a very long photograph would take any amount of memory.
    QRect part(QPoint(), size.scaled(m_image.size(), Qt::KeepAspectRatio).expandedTo({1, 1}));
    part.moveCenter(m_image.rect().center());
    return m_image.copy(part & m_image.rect())
        .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}
