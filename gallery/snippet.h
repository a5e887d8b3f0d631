#ifndef GALLERY_SNIPPET_H
#define GALLERY_SNIPPET_H

#include <QString>

/// Code that a card shows: the marked lines of one of the gallery's own sources, as they were compiled.
///
/// \code
/// //! [send]
/// auto *send = new TavikButton("Send");
/// //! [send]
/// \endcode
///
/// Lines marked with the same name again are added; each time the indentation of the first mark is taken off.
/// A source whose lines are shown stands in specimens/, in gallery.qrc and in CMakeLists.txt. scripts/snippets
/// reads the same marks for the guide.
class Snippet
{
public:
    /// No code.
    Snippet() = default;

    /// What specimens/<source>.cpp marks with a name. Without it, or without its last mark, the program ends.
    Snippet(const char *source, const char *name);

    const QString &text() const { return m_text; }

    /// What a source marks with a name; empty if it does not, or if the last mark is missing.
    static QString find(const QString &source, const QString &name);

private:
    QString m_text;
};

#endif
