#include "classes.h"
#include "support.h"
#include "xserver.h"

#include <QPixmapCache>

#ifdef __SANITIZE_ADDRESS__
extern "C" size_t __sanitizer_get_current_allocated_bytes(); // not every compiler installs its header
#else
#include <malloc.h>
#endif

/// Memory stays flat while controls and samplers come and go. What is not in use and yet reachable nobody else
/// sees; what is lost the leak sanitizer tells of at the end.
class TestLeaks : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void controls_data();
    void controls();
    void samplers();
};

namespace {

/// A few rounds fill the toolkit's caches for good.
constexpr int warmUpRounds = 50;

/// Bytes in use on the heap.
qint64 heapInUse()
{
#ifdef __SANITIZE_ADDRESS__
    return qint64(__sanitizer_get_current_allocated_bytes());
#else
    const struct mallinfo2 info = mallinfo2();
    return qint64(info.uordblks + info.hblkhd);
#endif
}

/// Bytes by which the heap grows in each round, once warmed up.
template <class Round>
double growth(int rounds, Round round)
{
    for (int i = 0; i < warmUpRounds; ++i)
        round(i);
    const qint64 before = heapInUse();
    for (int i = 0; i < rounds; ++i)
        round(i);
    return double(heapInUse() - before) / rounds;
}

QWidget *runningSampler()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->inherits("Screenshot") && window->isVisible())
            return window;
    }
    return nullptr;
}

void finishDeletions()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

Q_DECLARE_METATYPE(const Support::ControlClass *)

void TestLeaks::controls_data()
{
    QTest::addColumn<const Support::ControlClass *>("control");
    for (const Support::ControlClass &control : Support::controlClasses())
        QTest::newRow(control.name) << &control;
}

void TestLeaks::controls()
{
    QFETCH(const Support::ControlClass *, control);
    QWidget window;
    window.resize(300, 300);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const double bytes = growth(1000, [&](int) {
        const std::unique_ptr<QWidget> made(control->make(&window));
        made->show();
        QCoreApplication::processEvents();
    });
    QVERIFY2(bytes < 8, QByteArray::number(bytes).constData());
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
        QWidget *sampler = runningSampler();
        QVERIFY(QTest::qWaitForWindowExposed(sampler));
        QTest::keyClick(sampler, round % 2 == 0 ? Qt::Key_Escape : Qt::Key_Alt);
        finishDeletions();
    });
    QCOMPARE(picked, (100 + warmUpRounds) / 2);
    QVERIFY2(bytes < 64, QByteArray::number(bytes).constData());
}

/// On a real screen, where the sampler finds colours.
int main(int argc, char **argv)
{
    const XServer server(1280, 1024);
    const QApplication app(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QPixmapCache::setCacheLimit(0); // whose use tells nothing of ours
    TestLeaks test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_leaks.moc"
