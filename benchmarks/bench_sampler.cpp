#include "benches.h"
#include "color/screenshot_p.h"
#include "comparison.h"

#include "../tests/xserver.h"

#include <QApplication>
#include <QMouseEvent>

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace {

constexpr int rounds = 201;

/// The time that this thread was at work, as in the other comparisons.
double cpuMilliseconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

double timeOf(const std::function<void()> &work)
{
    const double start = cpuMilliseconds();
    work();
    return cpuMilliseconds() - start;
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

struct Times
{
    double move = 0;
    double repaint = 0;
};

/// What printSamplerTimes() prints in a process of its own, on an X server of its own: the headless
/// platform has no screen to take a picture of.
Times measureOnScreen()
{
    const XServer server(1920, 1080);
    const QList<QByteArray> printed =
        XServer::outputOfThisProgram(QStringLiteral("--sampler-times")).split(' ');
    if (printed.size() != 2)
        qFatal("The sampler could not be measured");
    return {printed.first().toDouble(), printed.last().toDouble()};
}

/// Both times come from the same run, whichever is asked for first.
const Times &timesOnScreen()
{
    static const Times times = measureOnScreen();
    return times;
}

} // namespace

int printSamplerTimes(int argc, char **argv)
{
    const QApplication app(argc, argv);
    Screenshot window(nullptr);
    while (!window.testAttribute(Qt::WA_Mapped))
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::processEvents();

    std::vector<double> moves;
    std::vector<double> repaints;
    for (int i = 0; i < rounds; ++i) {
        // With its position on the screen, as the window system's events have it: an event without one asks
        // the server for it, and that is no work of the sampler's.
        const QPointF at(200 + i * 5, 100 + i * 3);
        moves.push_back(timeOf([&] {
            QMouseEvent move(QEvent::MouseMove, at, at, at, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
            QApplication::sendEvent(&window, &move);
            QCoreApplication::processEvents();
        }));
        repaints.push_back(timeOf([&] {
            window.update();
            QCoreApplication::processEvents();
        }));
    }
    std::printf("%f %f\n", median(moves), median(repaints));
    return 0;
}

void registerSampler()
{
    compareFigures(
        "a sampler's move, against a full repaint", 0.2, [] { return timesOnScreen().move; },
        [] { return timesOnScreen().repaint; });
}
