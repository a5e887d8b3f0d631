#include "ownpictures.h"

#include <QDir>

QStringList OwnPictures::paths()
{
    QStringList paths;
    const QFileInfoList files = QDir(QStringLiteral(":/gallery/pictures")).entryInfoList();
    for (const QFileInfo &file : files)
        paths.append(file.filePath());
    return paths;
}
