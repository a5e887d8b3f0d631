#ifndef GALLERY_PICTURESPAGE_H
#define GALLERY_PICTURESPAGE_H

#include "page.h"

/// The pictures inside the library, by folder and name.
class PicturesPage : public Page
{
    Q_OBJECT

public:
    PicturesPage();

private:
    void addFolder(Span span, const QString &folder, const QString &description,
                   const QColor &ground = Qt::white);
};

#endif
