#include "settingsreader.h"

#include "photograph.h"
#include "postersizes.h"

#include <QDir>
#include <QJsonArray>
#include <QRegularExpression>

#include <cmath>

SettingsReader::SettingsReader(const QJsonObject &json, const QString &directory)
    : m_json(json)
    , m_directory(directory)
{
}

void SettingsReader::flag(const char *name, bool &value)
{
    value = find(name, QJsonValue::Bool, tr("true or false")).toBool();
}

void SettingsReader::text(const char *name, QString &value)
{
    value = find(name, QJsonValue::String, tr("a text")).toString();
}

void SettingsReader::file(const char *name, QString &value)
{
    text(name, value);
    if (value.isEmpty())
        complain(name, tr("must name a photograph"));
    else if (!Photograph::isOwn(value))
        value = QDir::cleanPath(QDir(m_directory).absoluteFilePath(value));
}

void SettingsReader::color(const char *name, QColor &value)
{
    static const QRegularExpression pattern(QStringLiteral("^#[0-9a-fA-F]{8}$"));
    QString color;
    text(name, color);
    if (!pattern.match(color).hasMatch())
        complain(name, tr("must be a colour as \"#aarrggbb\""));
    else
        value = QColor(color);
}

void SettingsReader::number(const char *name, int &value, int minimum, int maximum)
{
    double number = 0.0;
    this->number(name, number, minimum, maximum);
    if (m_error.isEmpty() && number != std::floor(number))
        complain(name, tr("must be a whole number"));
    value = m_error.isEmpty() ? int(number) : minimum;
}

void SettingsReader::number(const char *name, double &value, double minimum, double maximum)
{
    value = find(name, QJsonValue::Double, tr("a number")).toDouble();
    if (value < minimum || value > maximum)
        complain(name, tr("must be from %1 to %2, and is %3").arg(minimum).arg(maximum).arg(value));
}

void SettingsReader::choice(const char *name, int &value, std::initializer_list<const char *> choices)
{
    QStringList names;
    for (const char *choice : choices)
        names.append(QString::fromLatin1(choice));
    QString chosen;
    text(name, chosen);
    value = names.indexOf(chosen);
    if (value < 0)
        complain(name, tr("must be one of %1").arg(names.join(QLatin1String(", "))));
}

void SettingsReader::sizes(const char *name, QStringList &value)
{
    QStringList known;
    const QVector<PosterSize> table = posterSizes();
    for (const PosterSize &size : table)
        known.append(size.name);
    value.clear();
    const QJsonArray array = find(name, QJsonValue::Array, tr("a list")).toArray();
    for (const QJsonValue &entry : array) {
        if (known.contains(entry.toString()))
            value.append(entry.toString());
        else
            complain(name, tr("may hold nothing but %1").arg(known.join(QLatin1String(", "))));
    }
}

QJsonValue SettingsReader::find(const char *name, QJsonValue::Type type, const QString &typeName)
{
    const QStringList path = QString::fromLatin1(name).split(QLatin1Char('.'));
    const QJsonValue value = m_json.value(path.first()).toObject().value(path.last());
    if (value.isUndefined())
        complain(name, tr("is missing"));
    else if (value.type() != type)
        complain(name, tr("must be %1").arg(typeName));
    return value;
}

void SettingsReader::complain(const char *name, const QString &requirement)
{
    if (m_error.isEmpty())
        m_error = QStringLiteral("\"%1\" %2").arg(QString::fromLatin1(name), requirement);
}
