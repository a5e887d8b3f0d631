#ifndef POSTER_SETTINGSWRITER_H
#define POSTER_SETTINGSWRITER_H

#include <QColor>
#include <QJsonObject>
#include <QStringList>

#include <initializer_list>

/// Writes the fields of a settings file.
class SettingsWriter
{
public:
    /// Writes files in or below a directory by their names from there, so that both can move together.
    explicit SettingsWriter(const QString &directory);

    /// What has been written.
    QJsonObject json() const { return m_json; }

    void flag(const char *name, bool value) { insert(name, value); }
    void text(const char *name, const QString &value) { insert(name, value); }
    void file(const char *name, const QString &value);
    void color(const char *name, const QColor &value) { insert(name, value.name(QColor::HexArgb)); }
    void number(const char *name, double value, double, double) { insert(name, value); }
    void choice(const char *name, int value, std::initializer_list<const char *> choices);
    void sizes(const char *name, const QStringList &value);

private:
    void insert(const char *name, const QJsonValue &value);

    QString m_directory;
    QJsonObject m_json;
};

#endif
