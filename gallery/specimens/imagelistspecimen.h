#ifndef GALLERY_IMAGELISTSPECIMEN_H
#define GALLERY_IMAGELISTSPECIMEN_H

#include <QWidget>

class Report;
class TavikImageList;

/// A TavikImageList that takes picture files of the user's, from a dialog and by dropping them.
///
/// It begins with the pictures of the gallery itself.
class ImageListSpecimen : public QWidget
{
    Q_OBJECT

public:
    explicit ImageListSpecimen(QWidget *parent = nullptr);

    /// Adds those of the files that are pictures.
    void addPictures(const QStringList &files);

private:
    void choosePictures();

    TavikImageList *m_list;
    Report *m_report;
};

#endif
