#ifndef GALLERY_PICTURESPECIMENS_H
#define GALLERY_PICTURESPECIMENS_H

#include <QCoreApplication>

class QWidget;

/// Specimens of what applications do with the pictures inside the library.
class PictureSpecimens
{
    Q_DECLARE_TR_FUNCTIONS(PictureSpecimens)

public:
    /// A picture as the icon of a button.
    static QWidget *use();

    /// The three drawings of one icon.
    static QWidget *threeDrawings();

    /// A colour of three opacities over the alpha texture.
    static QWidget *transparency();
};

#endif
