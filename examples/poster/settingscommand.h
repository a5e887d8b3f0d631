#ifndef POSTER_SETTINGSCOMMAND_H
#define POSTER_SETTINGSCOMMAND_H

#include "postersettings.h"

#include <QUndoCommand>

#include <functional>

/// A change of the settings that can be undone.
///
/// Changes of the same thing in the same step of the user's become one: a whole drag is undone at once.
class SettingsCommand : public QUndoCommand
{
public:
    using Apply = std::function<void(const PosterSettings &)>;

    /// A change by the name of what is changed, in a step that counts up.
    SettingsCommand(const QString &what, int step, const PosterSettings &before,
                    const PosterSettings &after, const Apply &apply);

    void undo() override;
    void redo() override;
    int id() const override;
    bool mergeWith(const QUndoCommand *other) override;

private:
    int m_step;
    PosterSettings m_before;
    PosterSettings m_after;
    Apply m_apply;
};

#endif
