#include "settingswriter.h"

#include "photograph.h"

#include <QDir>
#include <QJsonArray>

SettingsWriter::SettingsWriter(const QString &directory)
    : m_directory(directory)
{
}

void SettingsWriter::file(const char *name, const QString &value)
{
    const QString relative = QDir(m_directory).relativeFilePath(value);
    const bool isBelow = !relative.startsWith(QLatin1String("..")) && QDir::isRelativePath(relative);
    insert(name, isBelow && !Photograph::isOwn(relative) ? relative : value);
}

void SettingsWriter::choice(const char *name, int value, std::initializer_list<const char *> choices)
{
    insert(name, QString::fromLatin1(choices.begin()[value]));
}

void SettingsWriter::sizes(const char *name, const QStringList &value)
{
    insert(name, QJsonArray::fromStringList(value));
}

void SettingsWriter::insert(const char *name, const QJsonValue &value)
{
    const QStringList path = QString::fromLatin1(name).split(QLatin1Char('.'));
    QJsonObject section = m_json.value(path.first()).toObject();
    section.insert(path.last(), value);
    m_json.insert(path.first(), section);
}
