#ifndef COMMON_PICTUREFILES_H
#define COMMON_PICTUREFILES_H

#include <QCoreApplication>
#include <QStringList>

class QWidget;

/// Picture files of the user's.
class PictureFiles
{
    Q_DECLARE_TR_FUNCTIONS(PictureFiles)

public:
    /// Asks for files of all formats that the toolkit reads. Empty if the user cancels.
    static QStringList ask(QWidget *parent, const QString &title);
};

#endif
