#include "color/paintmouserect_p.h"
#include "color/screenshot_p.h"
#include "knownpicture.h"
#include "support.h"
#include "xserver.h"

#include <memory>

namespace {

QImage screenPicture()
{
    return QGuiApplication::primaryScreen()->grabWindow(0).toImage().convertToFormat(QImage::Format_RGB32);
}

/// What the frame paints, with nothing behind it.
QImage pictureOf(PaintMouseRect *frame)
{
    QImage picture(110, 96, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    frame->render(&picture, {}, {}, QWidget::DrawChildren);
    return picture;
}

/// A frame over no colour: what is dim, and the outline.
QImage emptyFrame()
{
    QImage picture(110, 96, QImage::Format_ARGB32_Premultiplied);
    picture.fill(QColor(0, 0, 0, 160));
    QPainter painter(&picture);
    painter.setPen(Qt::darkGreen);
    painter.drawRect(0, 0, 109, 95);
    return picture;
}

/// Starts the sampler over a desktop that is painted anew, because the X server does not restore what the
/// window of another run has covered.
std::unique_ptr<Screenshot> startSampler()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible())
            window->repaint();
    }
    return std::make_unique<Screenshot>(nullptr);
}

/// A run of the sampler whose first paint is done.
struct Run
{
    Run()
    {
        // False only if the window never shows, which the tests then see by themselves.
        static_cast<void>(QTest::qWaitForWindowExposed(window.get()));
        QCoreApplication::processEvents();
    }

    /// Moves the real pointer, and waits until the window has followed.
    bool moveTo(const QPoint &position)
    {
        QCursor::setPos(position);
        const bool followed = QTest::qWaitFor([&] {
            return !positions.isEmpty() &&
                   QPoint(positions.last().at(0).toInt(), positions.last().at(1).toInt()) == position;
        });
        QCoreApplication::processEvents();
        return followed;
    }

    void press(Qt::MouseButton button = Qt::LeftButton) const
    {
        QTest::mousePress(window.get(), button, {}, window->mapFromGlobal(QCursor::pos()));
    }

    QColor picked() const
    {
        return colors.count() == 1 ? qvariant_cast<QColor>(colors.first().first()) : QColor();
    }

    std::unique_ptr<Screenshot> window = startSampler();
    PaintMouseRect *frame = window->findChild<PaintMouseRect *>();
    QSignalSpy positions{window.get(), &Screenshot::cursorPosChange};
    QSignalSpy colors{window.get(), &Screenshot::screenColor};
};

/// Keys and buttons that must not end a run, nor pick.
void verifyNothingElseEnds(const Run &run)
{
    for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Control, Qt::Key_A}) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(run.window.get(), &event);
        QVERIFY(!event.isAccepted());
    }
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton})
        run.press(button);
    QVERIFY(run.window->isVisible());
    QVERIFY(run.colors.isEmpty());
}

} // namespace

/// On a real screen with a known picture.
class TestSampler : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void window();
    void picks_data();
    void picks();
    void othersDoNothing();
    void picksTheLastPaint();
    void receiverDeletesIt();
    void pictureIsFrozen();
    void framePicture();
    void outsideThePicture();

private:
    KnownPicture m_picture;
};

void TestSampler::window()
{
    QCursor::setPos(400, 300);
    m_picture.repaint();
    const QImage before = screenPicture();
    QCOMPARE(QColor(before.pixel(500, 300)), KnownPicture::colorAt({500, 300}));
    const Run run;
    QVERIFY(run.window->isVisible());
    QCOMPARE(run.window->geometry(), QGuiApplication::primaryScreen()->geometry());

    // Nobody can tell that a picture stands before the desktop, but for the frame.
    QImage after = screenPicture();
    const QRect frame = run.frame->geometry();
    QVERIFY(before.copy(frame) != after.copy(frame));
    QPainter(&after).drawImage(frame, before, frame);
    QVERIFY(before == after);

    QTest::keyPress(run.window.get(), Qt::Key_Escape);
    QVERIFY(run.colors.isEmpty());
    QVERIFY(!run.window->isVisible());
}

void TestSampler::picks_data()
{
    QTest::addColumn<QPoint>("pointer");
    QTest::addColumn<QPoint>("frame");
    QTest::newRow("top left corner") << QPoint(0, 0) << QPoint(4, 26);
    QTest::newRow("top right corner") << QPoint(1279, 0) << QPoint(1165, 26);
    QTest::newRow("bottom left corner") << QPoint(0, 1023) << QPoint(4, 901);
    QTest::newRow("bottom right corner") << QPoint(1279, 1023) << QPoint(1165, 901);
    QTest::newRow("frame on the right edge") << QPoint(1166, 200) << QPoint(1170, 226);
    QTest::newRow("frame past the right edge") << QPoint(1167, 200) << QPoint(1053, 226);
    QTest::newRow("frame on the bottom edge") << QPoint(100, 902) << QPoint(104, 928);
    QTest::newRow("frame past the bottom edge") << QPoint(100, 903) << QPoint(104, 781);
}

/// At once by a press, and by Alt where the pointer has been moved to.
void TestSampler::picks()
{
    QFETCH(QPoint, pointer);
    QCursor::setPos(pointer);
    const Run atOnce;
    int told = 0; // while the window is still there
    const auto count = [&](const Run &run) {
        connect(run.window.get(), &Screenshot::screenColor, this,
                [&told, window = run.window.get()] { told += window->isVisible(); });
    };
    count(atOnce);
    QTEST(atOnce.frame->pos(), "frame");
    atOnce.press();
    QCOMPARE(atOnce.picked(), KnownPicture::colorAt(pointer));
    QVERIFY(!atOnce.window->isVisible());

    QCursor::setPos(700, 700);
    Run moved;
    count(moved);
    QVERIFY(moved.moveTo(pointer));
    QTEST(moved.frame->pos(), "frame");
    QTest::keyPress(moved.window.get(), Qt::Key_Alt);
    QCOMPARE(moved.picked(), KnownPicture::colorAt(pointer));
    QVERIFY(!moved.window->isVisible());
    QCOMPARE(told, 2);
}

void TestSampler::othersDoNothing()
{
    QCursor::setPos(50, 50);
    Run run;
    verifyNothingElseEnds(run);
    const QPoint onFrame = run.frame->geometry().center(); // it is not in the pointer's way
    QVERIFY(run.moveTo(onFrame));
    run.press();
    QCOMPARE(run.picked(), KnownPicture::colorAt(onFrame));
}

void TestSampler::picksTheLastPaint()
{
    QCursor::setPos(200, 200);
    const Run run;
    QTest::mousePress(run.window.get(), Qt::LeftButton, {}, {600, 600});
    QCOMPARE(run.picked(), KnownPicture::colorAt({200, 200}));
}

/// As one does that sends all that was left for later.
void TestSampler::receiverDeletesIt()
{
    for (const bool isPressed : {true, false}) {
        QCursor::setPos(200, 200);
        auto *sampler = startSampler().release();
        const QPointer<Screenshot> left = sampler;
        QVERIFY(QTest::qWaitForWindowExposed(sampler));
        QCoreApplication::processEvents();
        connect(sampler, &Screenshot::screenColor, this, [=] { delete sampler; });
        if (isPressed)
            QTest::mousePress(sampler, Qt::LeftButton);
        else
            QTest::keyPress(sampler, Qt::Key_Alt);
        QVERIFY(!left);
    }
}

void TestSampler::pictureIsFrozen()
{
    QCursor::setPos(50, 50);
    Run run;
    m_picture.invert();
    QVERIFY(run.moveTo({800, 600}));
    run.press();
    QCOMPARE(run.picked(), KnownPicture::colorAt({800, 600}));

    const Run next;
    next.press();
    m_picture.invert();
    QCOMPARE(next.picked(), QColor::fromRgba(KnownPicture::colorAt({800, 600}).rgb() ^ 0xffffff));
}

void TestSampler::framePicture()
{
    auto pixmap = std::make_shared<QPixmap>(10, 10);
    pixmap->fill(QColor(1, 20, 200));
    QWidget window;
    window.resize(400, 300);
    PaintMouseRect frame(pixmap, &window);
    frame.onPostionChange(9, 9);

    QImage expected = emptyFrame();
    QPainter painter(&expected);
    painter.setFont(frame.font());
    painter.fillRect(1, 1, 108, 60, QColor(1, 20, 200));
    painter.setPen(Qt::white);
    painter.drawText(6, 72, QStringLiteral("RGB:(1,20,200)"));
    painter.drawText(6, 89, QStringLiteral("CMY:(254,235,55)"));
    painter.end();
    QCOMPARE(pictureOf(&frame), expected);
}

void TestSampler::outsideThePicture()
{
    QCursor::setPos(300, 300);
    const Run run;
    const QPointF outside(-3, 10);
    QMouseEvent move(QEvent::MouseMove, outside, outside, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(run.window.get(), &move);
    QCoreApplication::processEvents();
    QCOMPARE(run.frame->pos(), QPoint(1, 36));
    run.press();
    QVERIFY(run.colors.isEmpty());
    QVERIFY(!run.window->isVisible());
}

/// On a real screen at scale 2: one pixel of the toolkit is four of the screen.
class TestSamplerScaled : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void showsAndPicks();
};

void TestSamplerScaled::showsAndPicks()
{
    const KnownPicture picture;
    QCursor::setPos(50, 50);
    const QImage before = screenPicture();
    QCOMPARE(before.size(), QSize(1280, 1024));
    Run run;
    QCOMPARE(run.window->size(), QSize(640, 512));
    const QRect shown(600, 600, 600, 400); // far from the frame
    QVERIFY(before.copy(shown) == screenPicture().copy(shown));

    // The pointer's numbers are taken as those of the picture's pixel, which are half as far.
    QVERIFY(run.moveTo({400, 300}));
    run.press();
    QCOMPARE(run.picked(), KnownPicture::colorAt({200, 150}));
}

/// Where the platform does not tell what is on the screen.
class TestSamplerBlind : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void opensAndEnds();
    void leavesTheApplicationRunning();
};

void TestSamplerBlind::opensAndEnds()
{
    for (const int key : {0, int(Qt::Key_Alt), int(Qt::Key_Escape)}) {
        const Run run;
        QVERIFY(run.window->isVisible());
        QCOMPARE(pictureOf(run.frame), emptyFrame());
        verifyNothingElseEnds(run);
        if (key == 0)
            run.press();
        else
            QTest::keyPress(run.window.get(), Qt::Key(key));
        QVERIFY(!run.window->isVisible());
        QVERIFY(run.colors.isEmpty());
    }
}

/// Also where no other window is open, as with a tool in the system's tray.
void TestSamplerBlind::leavesTheApplicationRunning()
{
    const Run run;
    QTimer::singleShot(0, run.window.get(), [&] { QTest::keyPress(run.window.get(), Qt::Key_Escape); });
    QTimer::singleShot(50, run.window.get(), [] { QCoreApplication::exit(7); });
    QCOMPARE(QApplication::exec(), 7);
    QVERIFY(!run.window->isVisible());
}

namespace {

template <class Test>
int runTest(int argc, char **argv)
{
    Test test;
    return QTest::qExec(&test, argc, argv);
}

int runOnPlatform(int argc, char **argv)
{
    const QApplication app(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    if (QGuiApplication::platformName() == QLatin1String("minimal"))
        return runTest<TestSamplerBlind>(argc, argv);
    if (app.devicePixelRatio() > 1)
        return runTest<TestSamplerScaled>(argc, argv);
    return runTest<TestSampler>(argc, argv);
}

} // namespace

/// Runs the tests on an X server of their own, at the scale TAVIK_TEST_SCALE, or on the headless platform: as the
/// environment asks for it.
int main(int argc, char **argv)
{
    if (qgetenv("QT_QPA_PLATFORM") == "minimal") {
        forgetSurroundings();
        return runOnPlatform(argc, argv);
    }

    const XServer server(1280, 1024);
    qputenv("QT_SCALE_FACTOR", qgetenv("TAVIK_TEST_SCALE"));
    return runOnPlatform(argc, argv);
}
#include "tst_sampler.moc"
