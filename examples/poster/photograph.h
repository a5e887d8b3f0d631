#ifndef POSTER_PHOTOGRAPH_H
#define POSTER_PHOTOGRAPH_H

#include <QCoreApplication>
#include <QImage>

/// A photograph by its name: "own:dawn" for one of the landscapes, else an image file.
class Photograph
{
    Q_DECLARE_TR_FUNCTIONS(Photograph)

public:
    Photograph() = default;

    /// Reads a photograph. If that fails, it is null and says why.
    explicit Photograph(const QString &name);

    /// Its name.
    QString name() const { return m_name; }

    /// Whether there is nothing to show.
    bool isNull() const { return m_landscape.isEmpty() && m_image.isNull(); }

    /// Why it is null.
    QString error() const { return m_error; }

    /// A name as the user reads it.
    static QString title(const QString &name);

    /// Whether a name is that of one of our own landscapes, not of a file.
    static bool isOwn(const QString &name);

    /// The names of our own landscapes.
    static QStringList ownNames();

    /// The photograph cut to the proportions of a size, and scaled to it. Null if it is null itself.
    QImage cover(const QSize &size) const;

private:
    QString read(const QString &file);

    QString m_name;
    QString m_landscape; // one of our own is painted when its size is known
    QImage m_image;
    QString m_error;
};

#endif
