#ifndef TAVIK_TESTS_XSERVER_H
#define TAVIK_TESTS_XSERVER_H

#include "surroundings.h"

#include <QCoreApplication>
#include <QProcess>

/// An X server of its own at a free display, with one screen, no scale and nobody watching. Applications that start
/// from here while it lives run on it.
class XServer
{
public:
    /// Starts a server with a screen of this size in pixels, and ends the process if it can't.
    XServer(int width, int height)
    {
        forgetSurroundings();
        const QString screen = QStringLiteral("%1x%2x24").arg(width).arg(height);
        m_process.start(QStringLiteral("Xvfb"),
                        {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                         QStringLiteral("0"), screen, QStringLiteral("-nolisten"), QStringLiteral("tcp")});
        if (!m_process.waitForReadyRead())
            qFatal("Xvfb is needed (Debian package xvfb)");
        qputenv("DISPLAY", ':' + m_process.readLine().trimmed());
        qputenv("QT_QPA_PLATFORM", "xcb");
        qputenv("QT_XCB_GL_INTEGRATION", "none"); // nothing here needs it, and drivers leak
    }

    ~XServer()
    {
        m_process.terminate();
        m_process.waitForFinished();
    }

    Q_DISABLE_COPY_MOVE(XServer)

    /// Runs this program once more, with an option, and returns what it prints.
    static QByteArray outputOfThisProgram(const QString &option)
    {
        QProcess probe;
        probe.start(QCoreApplication::applicationFilePath(), {option});
        probe.waitForFinished();
        return probe.readAllStandardOutput().simplified();
    }

private:
    QProcess m_process;
};

#endif
