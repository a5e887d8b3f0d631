#ifndef GALLERY_PICTUREROW_H
#define GALLERY_PICTUREROW_H

#include <QColor>
#include <QString>
#include <QWidget>

/// One picture of the library: drawn at several sizes on a tile, with its path beside it.
class PictureRow : public QWidget
{
    Q_OBJECT

public:
    PictureRow(const QString &path, const QColor &ground, QWidget *parent = nullptr);
};

#endif
