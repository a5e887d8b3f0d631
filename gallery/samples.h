#ifndef GALLERY_SAMPLES_H
#define GALLERY_SAMPLES_H

#include <QString>
#include <QVector>

class QWidget;

/// A compact specimen of one class, for a table of all controls.
struct Sample
{
    QString className;
    QWidget *(*make)();
};

/// One sample a class, at most about 25 rem wide.
const QVector<Sample> &sampleTable();

#endif
