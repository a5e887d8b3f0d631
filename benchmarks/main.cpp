#include "benches.h"
#include "comparison.h"

#include <Tavik/LenConverter>

#include <QApplication>

#include <cstring>
#include <vector>

int main(int argc, char **argv)
{
    if (argc == 2 && std::strcmp(argv[1], "--sampler-times") == 0)
        return printSamplerTimes(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    LenConverter::initRem();

    // Both sides alternate in random order, so that what else the machine does falls on both; what the
    // caller asks for comes after, and so wins.
    char repetitions[] = "--benchmark_repetitions=15";
    char minTime[] = "--benchmark_min_time=0.1";
    char interleave[] = "--benchmark_enable_random_interleaving=true";
    std::vector<char *> arguments = {argv[0], repetitions, minTime, interleave};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    int number = int(arguments.size());
    benchmark::Initialize(&number, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(number, arguments.data()))
        return 2;

    registerControls();
    registerContainers();
    registerPopup();
    registerColor();
    registerSampler();
    ComparisonReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::ClearRegisteredBenchmarks(); // their widgets must not outlive the application
    return reporter.overBound() > 0 ? 1 : 0;
}
