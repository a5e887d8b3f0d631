#include "poster.h"

#include "settingscommand.h"

Poster::Poster(QObject *parent)
    : QObject(parent)
    , m_photograph(m_settings.photograph)
{
}

bool Poster::edit(const QString &what, const Edit &edit)
{
    PosterSettings after = m_settings;
    edit(after);
    after.roundColors();
    if (after == m_settings)
        return false;
    m_undoStack.push(new SettingsCommand(what, m_step, m_settings, after,
                                         [this](const PosterSettings &settings) { apply(settings); }));
    return true;
}

void Poster::apply(const PosterSettings &settings)
{
    m_settings = settings;
    if (m_photograph.name() != settings.photograph) {
        m_photograph = Photograph(settings.photograph);
        if (settings.hasPhotograph && m_photograph.isNull())
            Q_EMIT photographMissing(m_photograph.error());
    }
    Q_EMIT changed();
}
