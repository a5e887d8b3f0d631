#ifndef TAVIK_TESTS_XSERVER_H
#define TAVIK_TESTS_XSERVER_H

#include <QProcess>

namespace Support {

/// An X server of one's own, without a window manager, as long as the object lives. It must be there before the
/// application is, and sends it to itself.
class XServer
{
public:
    XServer()
    {
        m_process.start(QStringLiteral("Xvfb"),
                        {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                         QStringLiteral("0"), QStringLiteral("1280x1024x24"), QStringLiteral("-nolisten"),
                         QStringLiteral("tcp")});
        if (!m_process.waitForReadyRead())
            qFatal("Xvfb is needed (Debian package xvfb)");
        qputenv("DISPLAY", ':' + m_process.readLine().trimmed());
        qputenv("QT_QPA_PLATFORM", "xcb");
        // Graphics drivers keep memory, and are unloaded before the leak sanitizer could name them.
        qputenv("QT_XCB_GL_INTEGRATION", "none");
    }

    ~XServer()
    {
        m_process.terminate();
        m_process.waitForFinished();
    }

    Q_DISABLE_COPY_MOVE(XServer)

private:
    QProcess m_process;
};

} // namespace Support

#endif
