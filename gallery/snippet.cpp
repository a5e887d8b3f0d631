#include "snippet.h"

#include <QFile>
#include <QStringList>

Snippet::Snippet(const char *source, const char *name)
{
    QFile file(QStringLiteral(":/gallery/specimens/%1.cpp").arg(QLatin1String(source)));
    if (file.open(QIODevice::ReadOnly))
        m_text = find(QString::fromUtf8(file.readAll()), QString::fromLatin1(name));
    if (m_text.isEmpty())
        qFatal("specimens/%s.cpp has no whole snippet %s", source, name);
}

QString Snippet::find(const QString &source, const QString &name)
{
    const QString mark = QStringLiteral("//! [%1]").arg(name);
    QStringList found;
    int indentation = -1; // outside
    const QStringList lines = source.split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        const QString code = line.trimmed();
        if (code == mark)
            indentation = indentation < 0 ? line.indexOf(mark) : -1;
        else if (indentation >= 0 && !code.startsWith(QStringLiteral("//! [")))
            found.append(line.mid(indentation));
    }
    return indentation < 0 ? found.join(QLatin1Char('\n')) : QString();
}
