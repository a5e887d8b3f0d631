#include "classes.h"
#include "support.h"
#include "xserver.h"

#include <QPixmapCache>

#include <malloc.h>
#include <unistd.h>

/// Memory stays flat while controls and samplers come and go. In a plain build the heap is counted, which also
/// sees what is kept and never used again; under the leak sanitizer what is lost shows at the end, for which a
/// tenth of the rounds is enough.
class TestLeaks : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void controls();
    void samplers();
};

namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr int rounds = 100;
#else
constexpr int rounds = 1000;
#endif

/// Bytes in use on the heap; always the same under the sanitizer, which has a heap of its own.
qint64 heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return qint64(info.uordblks + info.hblkhd);
}

/// Bytes by which the heap grows in each round, once half as many rounds have filled the toolkit's tables.
template <class Round>
double growth(int count, Round round)
{
    for (int i = 0; i < count / 2; ++i)
        round(i);
    const qint64 before = heapInUse();
    for (int i = 0; i < count; ++i)
        round(i);
    return double(heapInUse() - before) / count;
}

/// Starts the program anew without the allocator's cache for each thread: what it keeps counts as in use, so that
/// the heap seems to grow for thousands of rounds. The allocator reads this before main().
void turnThreadCacheOff(char **argv)
{
    if (!qEnvironmentVariableIsSet("GLIBC_TUNABLES")) {
        qputenv("GLIBC_TUNABLES", "glibc.malloc.tcache_count=0");
        execv("/proc/self/exe", argv);
        qFatal("The test cannot start itself anew");
    }
}

/// What the toolkit itself keeps of a popup and a window that come and go: nothing in Qt 5, 73 bytes each in Qt 6.4.
double growthOfPlainWindows()
{
    QWidget popup(nullptr, Qt::Popup);
    return growth(100, [&](int) {
        popup.show();
        QWidget window;
        window.showFullScreen(); // which closes the popup
        QVERIFY(QTest::qWaitForWindowExposed(&window));
    });
}

void finishDeletions()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

void TestLeaks::controls()
{
    QWidget window;
    window.resize(300, 300);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    for (const Support::ControlClass &control : Support::controlClasses()) {
        const double bytes = growth(rounds, [&](int) {
            const std::unique_ptr<QWidget> made(control.make(&window));
            made->show();
            QCoreApplication::processEvents();
        });
        const QByteArray found = control.name + QByteArray(": ") + QByteArray::number(bytes);
        QVERIFY2(bytes < 8, found.constData());
    }
}

/// Every other run is cancelled.
void TestLeaks::samplers()
{
    TavikColorPopup popup;
    int picked = 0;
    QObject::connect(&popup, &TavikColorPopup::colorChanged, &popup, [&] { ++picked; });
    auto *button = popup.findChild<TavikButton *>({}, Qt::FindDirectChildrenOnly);
    const double bytes = growth(100, [&](int round) {
        popup.showColorPopup({300, 300}, Qt::red);
        button->click();
        QWidget *sampler = Support::runningSampler();
        QVERIFY(QTest::qWaitForWindowExposed(sampler));
        QTest::keyClick(sampler, round % 2 == 0 ? Qt::Key_Escape : Qt::Key_Alt);
        finishDeletions();
    });
    QCOMPARE(picked, 75);
    const double plain = growthOfPlainWindows();
    QVERIFY2(bytes < plain + 64, QByteArray::number(bytes - plain).constData());
}

/// On a real screen, where the sampler finds colours.
int main(int argc, char **argv)
{
    turnThreadCacheOff(argv);
    const XServer server(1280, 1024);
    const QApplication app(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QPixmapCache::setCacheLimit(0); // whose use tells nothing of ours
    TestLeaks test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_leaks.moc"
