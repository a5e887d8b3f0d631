#ifndef TAVIK_TAVIKIMAGELIST_H
#define TAVIK_TAVIKIMAGELIST_H

#include <QListWidget>

#include <Tavik/tavik_export.h>

/// A grid of thumbnails, of which several can be selected at a time.
///
/// \code
/// auto *photographs = new TavikImageList(this);
/// photographs->setIconRemSz(10, 7.5);   // before the first image
/// for (const QString &file : files)
///     photographs->addImage(file);
/// \endcode
///
/// Tiles can't be dragged about and flow anew when the list is resized. No tile is current when the list is
/// shown. Images are read and scaled at once, and only the scaled ones are kept.
class TAVIK_EXPORT TavikImageList : public QListWidget
{
    Q_OBJECT

public:
    /// An empty list.
    explicit TavikImageList(QWidget *parent = nullptr);

    /// Fixes the width, in rem; what is negative counts as 0.
    void setRemWidth(double rem);

    /// Sets the size of thumbnails added from now on, in rem.
    void setIconRemSz(const double &remWidth, const double &remHeight);

    /// Adds an image file at the end, stretched to the icon size whatever its proportions are; before an
    /// icon size is set, to the size in which the toolkit shows icons in a grid. A file that can't be read
    /// adds an empty tile.
    ///
    /// So does one that would hold the application up: what is no regular file, as a pipe or a device; a picture
    /// of more than 67 million pixels (2^26; the largest screens have half of that, and one of 64 bits a pixel
    /// counts twice), unless its format can be read at the icon size, as a JPEG of one scan can, which
    /// then gives slightly other pixels and ends at 2^28; and any picture while the icon size has more than 2^26
    /// pixels. With Qt 6 QImageReader::allocationLimit() comes first: 128 megabytes, which are 2^25 pixels, unless the
    /// application sets another. Pictures within pictures, as in ICO and SVG files, are not looked at.
    void addImage(const QString &fileName);

protected:
    void showEvent(QShowEvent *event) override;

private:
    /// The icon size, or what the toolkit takes while there is none.
    QSize decorationSize() const;
};

#endif
