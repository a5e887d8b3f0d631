#include "common/picturefiles.h"

#include <QFileDialog>
#include <QImageReader>

QStringList PictureFiles::ask(QWidget *parent, const QString &title)
{
    QStringList patterns;
    const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    for (const QByteArray &format : formats)
        patterns.append(QStringLiteral("*.") + QString::fromLatin1(format));
    const QString filter = tr("Pictures (%1)").arg(patterns.join(QLatin1Char(' ')));
    return QFileDialog::getOpenFileNames(parent, title, QString(), filter);
}
