#include "settingscommand.h"

SettingsCommand::SettingsCommand(const QString &what, int step, const PosterSettings &before,
                                 const PosterSettings &after, const Apply &apply)
    : QUndoCommand(what)
    , m_step(step)
    , m_before(before)
    , m_after(after)
    , m_apply(apply)
{
}

void SettingsCommand::undo()
{
    m_apply(m_before);
}

void SettingsCommand::redo()
{
    m_apply(m_after);
}

int SettingsCommand::id() const
{
    return 1; // the stack asks mergeWith() of commands of one id only
}

bool SettingsCommand::mergeWith(const QUndoCommand *other)
{
    const auto *next = static_cast<const SettingsCommand *>(other);
    if (next->m_step != m_step || next->text() != text())
        return false;
    m_after = next->m_after;
    setObsolete(m_after == m_before); // dragged back to where it began
    return true;
}
