#ifndef TAVIK_ICONTOOL_H
#define TAVIK_ICONTOOL_H

#include <QIcon>
#include <QImage>

#include <Tavik/tavik_export.h>

/// Icons of three drawings, and the checkerboard behind transparent colours.
///
/// The library's thirty pictures are compiled in and can be used by their paths from the moment the
/// library is loaded. Three sets of them come in three drawings each:
/// \code
/// auto *button = new TavikButton(TavikButton::Flat, this);
/// button->setIcon(IconTool::constructIcon(":/Color/images/gradient", QSize(16, 16)));
/// button->setIsPaintOverrided(true);
/// button->setRemSize(2, 2);
/// \endcode
/// The drawings are SVG files: where the toolkit's SVG plugin is missing, they stay invisible.
class TAVIK_EXPORT IconTool
{
public:
    IconTool() = default;

    /// An icon from three files: `path`.svg for QIcon::Normal, `path`_hover.svg for QIcon::Active and
    /// `path`_press.svg for QIcon::Selected, all with `size` in pixels and for QIcon::On.
    ///
    /// `path` has no extension. A file that does not exist leaves its mode without a picture.
    static QIcon constructIcon(const QString &path, const QSize &size);

    /// The 16 by 16 pixels checkerboard, half transparent, to tile behind a colour that has alpha.
    static QImage alphaTexture();
};

#endif
