#ifndef POSTER_SETTINGSFILE_H
#define POSTER_SETTINGSFILE_H

#include <QCoreApplication>

struct PosterSettings;

/// A file of a poster's settings, in JSON.
class SettingsFile
{
    Q_DECLARE_TR_FUNCTIONS(SettingsFile)

public:
    explicit SettingsFile(const QString &path);

    /// Reads the settings. Returns what is wrong with the file, and then leaves the settings as they are;
    /// empty if all is well. A photograph that can't be read is a fault too.
    QString read(PosterSettings &settings) const;

    /// Writes the settings, wholly or not at all. Returns what went wrong, empty if all is well.
    QString write(const PosterSettings &settings) const;

private:
    QString fault(const QString &reason) const;
    QString directory() const;

    QString m_path;
};

#endif
