#ifndef GALLERY_SAMPLES_H
#define GALLERY_SAMPLES_H

#include <QString>
#include <QVector>

class QWidget;

/// A compact specimen of one class, for a table of all controls, or another picture of the guide.
struct Sample
{
    QString name; // in any case: the file's is lower
    QWidget *(*make)();
};

/// One sample a class, at most about 25 rem wide, and the guide's own pictures.
const QVector<Sample> &sampleTable();

#endif
