#include "look.h"
#include "posterwindow.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>

#include <algorithm>

#include <Tavik/LenConverter>

namespace {

enum ExitCode { Done = 0, CannotWrite = 1, BadValue = 2 };

QString tr(const char *text)
{
    return QCoreApplication::translate("main", text);
}

int fail(const QString &message, ExitCode code)
{
    QTextStream(stderr) << message << Qt::endl;
    return code;
}

/// Writes a picture of the window, once its panels stand still, and ends.
int writePicture(PosterWindow &window, const QString &file)
{
    QObject::connect(
        &window, &PosterWindow::settled, &window,
        [&] { QCoreApplication::exit(window.grab().save(file) ? Done : CannotWrite); },
        Qt::QueuedConnection);
    window.resize(PosterWindow::goodSize());
    window.show();
    const int code = QApplication::exec();
    return code == Done ? Done
                        : fail(tr(QT_TRANSLATE_NOOP("main", "Can't write %1")).arg(file), CannotWrite);
}

} // namespace

int main(int argc, char **argv)
{
    const bool needsNoDisplay = std::any_of(argv, argv + argc, [](const QByteArray &argument) {
        return argument.startsWith("--picture") || argument == "--help" || argument == "-h";
    });
    if (needsNoDisplay && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");

    QApplication app(argc, argv);
    app.setApplicationName(QStringLiteral("tavik-poster"));
    const QCommandLineOption rem(QStringLiteral("rem"),
                                 tr(QT_TRANSLATE_NOOP("main", "Pixels per rem: 10, 12, 18, 24, 30. Without "
                                                              "it, the screen decides.")),
                                 QStringLiteral("number"));
    const QCommandLineOption picture(
        QStringLiteral("picture"),
        tr(QT_TRANSLATE_NOOP("main", "Write a picture of the window to this PNG file, and end.")),
        QStringLiteral("file"));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        tr(QT_TRANSLATE_NOOP("main", "Makes posters and backgrounds of photographs.")));
    parser.addHelpOption();
    parser.addOptions({rem, picture});
    parser.addPositionalArgument(QStringLiteral("settings"),
                                 tr(QT_TRANSLATE_NOOP("main", "A poster's settings to open.")),
                                 QStringLiteral("[settings]"));
    parser.process(app);

    Look::apply(app);
    LenConverter::initRem(); // before the first control
    if (parser.isSet(rem)) {
        LenConverter::m_rem = parser.value(rem).toInt();
        if (!QVector<int>{10, 12, 18, 24, 30}.contains(LenConverter::m_rem))
            return fail(tr(QT_TRANSLATE_NOOP("main", "Pixels per rem: 10, 12, 18, 24, 30")), BadValue);
    }
    PosterWindow window;
    if (!parser.positionalArguments().isEmpty())
        window.openSettings(parser.positionalArguments().first());
    if (parser.isSet(picture))
        return writePicture(window, parser.value(picture));
    window.show();
    return QApplication::exec();
}
