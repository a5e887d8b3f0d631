#ifndef POSTER_POSTERSIZES_H
#define POSTER_POSTERSIZES_H

#include <QSize>
#include <QString>
#include <QVector>

/// A size that many posters have.
struct PosterSize
{
    QString name; // as it stands in files
    QString title;
    QSize size; // pixels
};

/// The sizes to choose from.
QVector<PosterSize> posterSizes();

#endif
