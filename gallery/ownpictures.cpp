#include "ownpictures.h"

#include <QDir>

// The pictures are in a static library, whose resources come only when they are called; this can't be done
// inside a namespace.
static void callPictures()
{
    Q_INIT_RESOURCE(gallery);
}

QStringList OwnPictures::paths()
{
    callPictures();
    QStringList paths;
    const QFileInfoList files = QDir(QStringLiteral(":/gallery/pictures")).entryInfoList();
    for (const QFileInfo &file : files)
        paths.append(file.filePath());
    return paths;
}
