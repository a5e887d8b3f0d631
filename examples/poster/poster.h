#ifndef POSTER_POSTER_H
#define POSTER_POSTER_H

#include "photograph.h"
#include "postersettings.h"

#include <QUndoStack>

/// The poster that is being made: its settings, its photograph and the way back through its changes.
///
/// \code
/// connect(slider, &QSlider::valueChanged, poster, [=](int value) {
///     poster->edit(tr("opacity"), [=](PosterSettings &s) { s.opacity = value; });
/// });
/// connect(poster, &Poster::changed, this, [=] { slider->setValue(poster->settings().opacity); });
/// \endcode
class Poster : public QObject
{
    Q_OBJECT

public:
    /// What changes some of the settings.
    using Edit = std::function<void(PosterSettings &)>;

    explicit Poster(QObject *parent = nullptr);

    const PosterSettings &settings() const { return m_settings; }

    /// The photograph of the settings; null if it can't be read.
    const Photograph &photograph() const { return m_photograph; }

    /// The changes, for undo and redo.
    QUndoStack *undoStack() { return &m_undoStack; }

    /// Changes settings. `what` tells the user what an undo takes back; further changes of the same in the
    /// same step are undone together. Colours are rounded. Returns whether anything is another now; if not, the
    /// edit is forgotten.
    bool edit(const QString &what, const Edit &edit);

    /// Ends the present step: what is changed from now on is undone on its own.
    void beginStep() { ++m_step; }

Q_SIGNALS:
    /// The settings have changed, by whomever.
    void changed();

    /// The photograph of the new settings can't be read.
    void photographMissing(const QString &reason);

private:
    void apply(const PosterSettings &settings);

    PosterSettings m_settings;
    Photograph m_photograph;
    QUndoStack m_undoStack;
    int m_step = 0;
};

#endif
