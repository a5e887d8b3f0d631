#ifndef GALLERY_OWNPICTURES_H
#define GALLERY_OWNPICTURES_H

#include <QStringList>

/// The landscapes that the gallery has inside, to show what takes pictures.
namespace OwnPictures {

/// Their paths, which work wherever a file name does.
QStringList paths();

} // namespace OwnPictures

#endif
