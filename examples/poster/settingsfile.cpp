#include "settingsfile.h"

#include "settingsfields.h"
#include "settingsreader.h"
#include "settingswriter.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

namespace {

constexpr qint64 mostBytes = 1024 * 1024;

} // namespace

SettingsFile::SettingsFile(const QString &path)
    : m_path(path)
{
}

QString SettingsFile::read(PosterSettings &settings) const
{
    if (QFileInfo::exists(m_path) && !QFileInfo(m_path).isFile())
        return fault(tr("it is no file")); // a pipe would never end
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return fault(file.errorString());
    if (file.size() > mostBytes)
        return fault(tr("it is too large to be a poster"));
    QJsonParseError mistake;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &mistake);
    if (mistake.error != QJsonParseError::NoError)
        return fault(
            tr("it is not JSON, at character %1: %2").arg(mistake.offset).arg(mistake.errorString()));
    if (!document.isObject())
        return fault(tr("it holds no poster"));

    PosterSettings read;
    SettingsReader reader(document.object(), directory());
    describeFields(reader, read);
    if (!reader.error().isEmpty())
        return fault(reader.error());
    settings = read;
    return {};
}

QString SettingsFile::write(const PosterSettings &settings) const
{
    SettingsWriter writer(directory());
    describeFields(writer, settings);
    QSaveFile file(m_path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(QJsonDocument(writer.json()).toJson());
        if (file.commit())
            return {};
    }
    return tr("%1 can't be written: %2.").arg(QDir::toNativeSeparators(m_path), file.errorString());
}

QString SettingsFile::fault(const QString &reason) const
{
    return tr("%1 can't be opened: %2%3 Your poster is as it was.")
        .arg(QDir::toNativeSeparators(m_path), reason,
             reason.endsWith(QLatin1Char('.')) ? QString() : QStringLiteral("."));
}

QString SettingsFile::directory() const
{
    return QFileInfo(m_path).absolutePath();
}
