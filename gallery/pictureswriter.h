#ifndef GALLERY_PICTURESWRITER_H
#define GALLERY_PICTURESWRITER_H

#include <QCoreApplication>
#include <QString>

class QWidget;

/// Renders the gallery into PNG files, without a window on any screen.
///
/// Each file is told on the standard output, and the first that can't be written on the standard error.
class PicturesWriter
{
    Q_DECLARE_TR_FUNCTIONS(PicturesWriter)

public:
    /// Writes into a directory, which is made if need be.
    explicit PicturesWriter(const QString &directory);

    /// Every page at every rem, at its full height, as `<page>-<rem>.png`. Returns whether all went well.
    bool writePages() const;

    /// A small specimen of each control at 12 pixels per rem, named as its class in lower case, and the
    /// window as gallery.png. Returns whether all went well.
    bool writeSamples() const;

    /// Brings what is moving in a widget to its end, as nothing moves without an event loop.
    static void settle(const QWidget &widget);

private:
    bool write(QWidget &widget, const QString &name) const;

    QString m_directory;
};

#endif
