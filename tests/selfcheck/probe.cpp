// Prints what the self-check finds. Arguments: --core for no GUI, --rem to choose the rem as an application
// does, --plugins DIRECTORY to look for plugins nowhere else.

#include "foundation/lenconverter.h"
#include "foundation/tavikselfcheck.h"

#include <QGuiApplication>

#include <cstdio>
#include <memory>

int main(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const int plugins = arguments.indexOf(QStringLiteral("--plugins"));
    if (plugins >= 0)
        QCoreApplication::setLibraryPaths({arguments.at(plugins + 1)});
    std::unique_ptr<QCoreApplication> app;
    if (arguments.contains(QStringLiteral("--core")))
        app = std::make_unique<QCoreApplication>(argc, argv);
    else
        app = std::make_unique<QGuiApplication>(argc, argv);
    if (arguments.contains(QStringLiteral("--rem")))
        LenConverter::initRem();
    for (const QString &problem : TavikSelfCheck::problems())
        std::printf("%s\n", qPrintable(problem));
    return 0;
}
