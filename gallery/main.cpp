#include "commandline.h"
#include "look.h"
#include "pictureswriter.h"
#include "window.h"

#include <QApplication>
#include <QTextStream>

#include <Tavik/LenConverter>

namespace {

enum ExitCode { Done = 0, CannotWrite = 1, BadValue = 2 };

QStringList textsOf(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

int writeFiles(const CommandLine &commandLine)
{
    const QString pictures = commandLine.picturesDirectory();
    const QString samples = commandLine.samplesDirectory();
    const bool isWritten = (pictures.isEmpty() || PicturesWriter(pictures).writePages()) &&
                           (samples.isEmpty() || PicturesWriter(samples).writeSamples());
    return isWritten ? Done : CannotWrite;
}

} // namespace

int main(int argc, char **argv)
{
    if (CommandLine().needsNoDisplay(textsOf(argc, argv)) && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");

    QApplication app(argc, argv);
    app.setApplicationName(QStringLiteral("tavik-gallery"));
    app.setApplicationVersion(QStringLiteral(TAVIK_VERSION));
    CommandLine commandLine;
    const QString mistake = commandLine.read();
    if (!mistake.isEmpty()) {
        QTextStream(stderr) << mistake << Qt::endl;
        return BadValue;
    }

    Look::apply(app);
    if (commandLine.asksForFiles())
        return writeFiles(commandLine);
    LenConverter::initRem();
    Look::setRem(commandLine.rem() > 0 ? commandLine.rem() : LenConverter::rem());
    Window window(commandLine.page());
    window.show();
    return app.exec();
}
