#include "commandline.h"
#include "look.h"
#include "posterwindow.h"

#include <QApplication>
#include <QTextStream>
#include <QTranslator>

#include <Tavik/LenConverter>
#include <Tavik/TavikKeyboardAccess>
#include <Tavik/TavikSelfCheck>

namespace {

enum ExitCode { Done = 0, CannotWrite = 1, BadValue = 2 };

int fail(const QString &message, ExitCode code)
{
    QTextStream(stderr) << message << Qt::endl;
    return code;
}

/// For whoever starts it from a terminal: what is missing on this machine.
void reportProblems()
{
    for (const QString &problem : TavikSelfCheck::problems())
        QTextStream(stderr) << problem << Qt::endl;
}

/// Writes a picture of the window, once its panels stand still, and ends.
int writePicture(PosterWindow &window, const QString &file)
{
    const auto write = [&] { QCoreApplication::exit(window.grab().save(file) ? Done : CannotWrite); };
    QObject::connect(&window, &PosterWindow::settled, &window, write, Qt::QueuedConnection);
    window.resize(PosterWindow::goodSize());
    window.show();
    const int code = QApplication::exec();
    return code == Done ? Done : fail(CommandLine::tr("Can't write %1").arg(file), CannotWrite);
}

} // namespace

int main(int argc, char **argv)
{
    if (CommandLine::needsNoDisplay(argc, argv) && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    app.setApplicationName(QStringLiteral("tavik-poster"));
    CommandLine commandLine;
    const QString mistake = commandLine.read();
    if (!mistake.isEmpty())
        return fail(mistake, BadValue);

    LenConverter::initRem(); // before the first control
    if (commandLine.rem() > 0)
        LenConverter::m_rem = commandLine.rem();
    Look::apply(app);
    QTranslator tavik; // the library never loads its translations by itself
    if (tavik.load(QLocale(), QStringLiteral("tavik"), QStringLiteral("_"),
                   QStringLiteral(TAVIK_TRANSLATIONS)))
        app.installTranslator(&tavik);
    PosterWindow window;
    TavikKeyboardAccess::install(&window); // before it is shown, and for all that comes into it later
    if (!commandLine.settings().isEmpty())
        window.openSettings(commandLine.settings());
    if (!commandLine.picture().isEmpty())
        return writePicture(window, commandLine.picture());
    reportProblems();
    window.show();
    return QApplication::exec();
}
