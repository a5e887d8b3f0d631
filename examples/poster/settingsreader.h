#ifndef POSTER_SETTINGSREADER_H
#define POSTER_SETTINGSREADER_H

#include <QColor>
#include <QCoreApplication>
#include <QJsonObject>
#include <QStringList>

#include <initializer_list>

/// Reads the fields of a settings file, up to the first that is missing or wrong.
class SettingsReader
{
    Q_DECLARE_TR_FUNCTIONS(SettingsReader)

public:
    /// Reads from an object; the names of files in it are relative to a directory.
    SettingsReader(const QJsonObject &json, const QString &directory);

    /// What is wrong, empty if nothing is.
    QString error() const { return m_error; }

    void flag(const char *name, bool &value);
    void text(const char *name, QString &value);
    void file(const char *name, QString &value);
    void color(const char *name, QColor &value);
    void number(const char *name, int &value, int minimum, int maximum);
    void number(const char *name, double &value, double minimum, double maximum);
    void choice(const char *name, int &value, std::initializer_list<const char *> choices);
    void sizes(const char *name, QStringList &value);

private:
    QJsonValue find(const char *name, QJsonValue::Type type, const QString &typeName);
    void complain(const char *name, const QString &requirement);

    QJsonObject m_json;
    QString m_directory;
    QString m_error;
};

#endif
