#include "paintmouserect_p.h"
#include "screenshot_p.h"
#include "support.h"
#include "xserver.h"

#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QSignalSpy>

#include <memory>

namespace {

constexpr int patch = 32;

/// The colour of the known picture at a position on the screen, in pixels as the toolkit counts them.
QColor pictureColor(const QPoint &position)
{
    const int column = position.x() / patch;
    const int row = position.y() / patch;
    return {column * 6 % 256, row * 8 % 256, (column * 37 + row * 59) % 256};
}

/// Covers the screen with a picture of patches, each in a colour of its own.
class KnownPicture : public QWidget
{
public:
    KnownPicture()
    {
        setWindowFlags(Qt::BypassWindowManagerHint | Qt::FramelessWindowHint);
        setGeometry(QGuiApplication::primaryScreen()->geometry());
    }

    void setInverted(bool inverted)
    {
        m_inverted = inverted;
        repaint();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        for (int y = 0; y < height(); y += patch) {
            for (int x = 0; x < width(); x += patch) {
                const QColor color = pictureColor({x, y});
                painter.fillRect(x, y, patch, patch,
                                 m_inverted ? QColor::fromRgba(color.rgb() ^ 0xffffff) : color);
            }
        }
    }

private:
    bool m_inverted = false;
};

QImage screenPicture()
{
    return QGuiApplication::primaryScreen()->grabWindow(0).toImage().convertToFormat(QImage::Format_RGB32);
}

QImage clearPicture()
{
    QImage picture(110, 96, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    return picture;
}

/// What the frame paints within its outline, with nothing behind it.
QImage insideOf(PaintMouseRect *frame)
{
    QImage picture = clearPicture();
    frame->render(&picture, {}, {}, QWidget::DrawChildren);
    return picture.copy(1, 1, 108, 94);
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
    void initTestCase();
    void metaObjects();
    void window();
    void picks_data();
    void picks();
    void picksAtOnce_data();
    void picksAtOnce();
    void altPicks();
    void escapeLeaves();
    void othersDoNothing();
    void picksTheLastPaint();
    void pictureIsFrozen();
    void framePlace_data();
    void framePlace();
    void movesOverTheFrame();
    void framePicture();
    void frameTexts_data();
    void frameTexts();
    void outsideThePicture();
    void manyRuns();
    void receiverDeletes();

private:
    KnownPicture m_picture;
};

void TestSampler::initTestCase()
{
    m_picture.show();
    QVERIFY(QTest::qWaitForWindowExposed(&m_picture));
    QCOMPARE(QColor(screenPicture().pixel(500, 300)), pictureColor({500, 300}));
}

void TestSampler::metaObjects()
{
    const QMetaObject &window = Screenshot::staticMetaObject;
    QCOMPARE(window.className(), "Screenshot");
    QCOMPARE(window.methodCount() - window.methodOffset(), 2);
    QCOMPARE(window.method(window.methodOffset()).methodSignature(),
             QByteArray("cursorPosChange(int,int)"));
    QCOMPARE(window.method(window.methodOffset() + 1).methodSignature(), QByteArray("screenColor(QColor)"));

    const QMetaObject &frame = PaintMouseRect::staticMetaObject;
    QCOMPARE(frame.className(), "PaintMouseRect");
    QCOMPARE(frame.methodCount() - frame.methodOffset(), 1);
    const QMetaMethod slot = frame.method(frame.methodOffset());
    QCOMPARE(slot.methodSignature(), QByteArray("onPostionChange(int,int)"));
    QCOMPARE(slot.methodType(), QMetaMethod::Slot);
}

void TestSampler::window()
{
    QCursor::setPos(400, 300);
    m_picture.repaint();
    const QImage before = screenPicture();
    const Run run;
    QVERIFY(run.window->isVisible());
    QVERIFY(run.window->isFullScreen());
    QCOMPARE(run.window->geometry(), QGuiApplication::primaryScreen()->geometry());
    QCOMPARE(run.window->cursor().shape(), Qt::ArrowCursor);

    // Nobody can tell that a picture stands before the desktop, but for the frame.
    QImage after = screenPicture();
    const QRect frame = run.frame->geometry();
    QVERIFY(before.copy(frame) != after.copy(frame));
    QPainter(&after).drawImage(frame, before, frame);
    QVERIFY(before == after);
}

void TestSampler::picks_data()
{
    QTest::addColumn<QPoint>("position");
    for (const QPoint &position :
         {QPoint(100, 100), QPoint(95, 95), QPoint(96, 96), QPoint(640, 512), QPoint(1, 1000),
          QPoint(1279, 1), QPoint(1278, 1022), QPoint(1250, 500), QPoint(500, 980)}) {
        QTest::addRow("%d, %d", position.x(), position.y()) << position;
    }
}

void TestSampler::picks()
{
    QFETCH(QPoint, position);
    QCursor::setPos(700, 700);
    Run run;
    QVERIFY(run.moveTo(position));
    run.press();
    QCOMPARE(run.picked(), pictureColor(position));
    QCOMPARE(run.picked().alpha(), 255);
    QVERIFY(!run.window->isVisible());
}

void TestSampler::picksAtOnce_data()
{
    QTest::addColumn<QPoint>("position");
    QTest::newRow("top left") << QPoint(0, 0);
    QTest::newRow("top right") << QPoint(1279, 0);
    QTest::newRow("bottom left") << QPoint(0, 1023);
    QTest::newRow("bottom right") << QPoint(1279, 1023);
}

void TestSampler::picksAtOnce()
{
    QFETCH(QPoint, position);
    QCursor::setPos(position);
    const Run run;
    run.press();
    QCOMPARE(run.picked(), pictureColor(position));
}

void TestSampler::altPicks()
{
    QCursor::setPos(50, 50);
    Run run;
    QVERIFY(run.moveTo({333, 444}));
    QTest::keyPress(run.window.get(), Qt::Key_Alt);
    QCOMPARE(run.picked(), pictureColor({333, 444}));
    QVERIFY(!run.window->isVisible());
}

void TestSampler::escapeLeaves()
{
    const Run run;
    QTest::keyPress(run.window.get(), Qt::Key_Escape);
    QVERIFY(!run.window->isVisible());
    QVERIFY(run.colors.isEmpty());
}

void TestSampler::othersDoNothing()
{
    QCursor::setPos(50, 50);
    Run run;
    verifyNothingElseEnds(run);
    QVERIFY(run.moveTo({640, 200}));
    run.press();
    QCOMPARE(run.picked(), pictureColor({640, 200}));
}

void TestSampler::picksTheLastPaint()
{
    QCursor::setPos(200, 200);
    const Run run;
    QTest::mousePress(run.window.get(), Qt::LeftButton, {}, {600, 600});
    QCOMPARE(run.picked(), pictureColor({200, 200}));
}

void TestSampler::pictureIsFrozen()
{
    QCursor::setPos(50, 50);
    Run run;
    m_picture.setInverted(true);
    QVERIFY(run.moveTo({800, 600}));
    run.press();
    QCOMPARE(run.picked(), pictureColor({800, 600}));

    const Run next;
    next.press();
    const QRgb inverted = pictureColor({800, 600}).rgb() ^ 0xffffff;
    m_picture.setInverted(false);
    QCOMPARE(next.picked(), QColor::fromRgba(inverted));
}

void TestSampler::framePlace_data()
{
    QTest::addColumn<QPoint>("pointer");
    QTest::addColumn<QPoint>("frame");
    QTest::newRow("in the middle") << QPoint(100, 200) << QPoint(104, 226);
    QTest::newRow("top left corner") << QPoint(0, 0) << QPoint(4, 26);
    QTest::newRow("on the right edge") << QPoint(1166, 200) << QPoint(1170, 226);
    QTest::newRow("past the right edge") << QPoint(1167, 200) << QPoint(1053, 226);
    QTest::newRow("on the bottom edge") << QPoint(100, 902) << QPoint(104, 928);
    QTest::newRow("past the bottom edge") << QPoint(100, 903) << QPoint(104, 781);
    QTest::newRow("on both") << QPoint(1166, 902) << QPoint(1170, 928);
    QTest::newRow("past both") << QPoint(1167, 903) << QPoint(1053, 781);
    QTest::newRow("bottom right corner") << QPoint(1279, 1023) << QPoint(1165, 901);
}

void TestSampler::framePlace()
{
    QFETCH(QPoint, pointer);
    QCursor::setPos(pointer);
    Run run;
    QTEST(run.frame->pos(), "frame"); // as it is placed first
    QVERIFY(run.moveTo({600, 500}));
    QVERIFY(run.moveTo(pointer));
    QTEST(run.frame->pos(), "frame");
}

void TestSampler::movesOverTheFrame()
{
    QCursor::setPos(300, 300);
    Run run;
    const QPoint onFrame = run.frame->geometry().center();
    QVERIFY(run.moveTo(onFrame));
    run.press();
    QCOMPARE(run.picked(), pictureColor(onFrame));
}

void TestSampler::framePicture()
{
    QCursor::setPos(300, 300);
    const Run run;
    const QRect place(304, 326, 110, 96);
    QCOMPARE(run.frame->geometry(), place);
    const QImage picture = screenPicture().copy(place);

    // The texts may reach over the right edge, with a wide font.
    const QRgb outline = QColor(Qt::darkGreen).rgb();
    for (const QPoint &point : {QPoint(0, 0), QPoint(0, 60), QPoint(0, 80), QPoint(0, 95), QPoint(50, 0),
                                QPoint(109, 0), QPoint(109, 60), QPoint(50, 95), QPoint(109, 95)}) {
        QCOMPARE(picture.pixel(point), outline);
    }
    QImage swatch(108, 60, picture.format());
    swatch.fill(pictureColor({300, 300}));
    QCOMPARE(picture.copy(1, 1, 108, 60), swatch);
    // Left of the texts the strip is nothing but the dimmed desktop.
    for (int y = 61; y < 95; ++y) {
        const QColor desktop = pictureColor(place.topLeft() + QPoint(2, y));
        const QColor dimmed = picture.pixelColor(2, y);
        QVERIFY(qAbs(dimmed.red() - desktop.red() * 95 / 255) <= 1);
        QVERIFY(qAbs(dimmed.green() - desktop.green() * 95 / 255) <= 1);
        QVERIFY(qAbs(dimmed.blue() - desktop.blue() * 95 / 255) <= 1);
    }
}

void TestSampler::frameTexts_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QString>("rgb");
    QTest::addColumn<QString>("cmy");
    QTest::newRow("red") << QColor(255, 0, 0) << "RGB:(255,0,0)"
                         << "CMY:(0,255,255)";
    QTest::newRow("mixed") << QColor(1, 20, 200) << "RGB:(1,20,200)"
                           << "CMY:(254,235,55)";
}

void TestSampler::frameTexts()
{
    QFETCH(QColor, color);
    QFETCH(QString, rgb);
    QFETCH(QString, cmy);
    auto pixmap = std::make_shared<QPixmap>(10, 10);
    pixmap->fill(color);
    QWidget window;
    window.resize(400, 300);
    PaintMouseRect frame(pixmap, &window);
    QVERIFY(frame.isHidden());
    frame.onPostionChange(9, 9);

    QImage expected = clearPicture();
    QPainter painter(&expected);
    painter.setFont(frame.font());
    painter.fillRect(0, 0, 110, 96, QColor(0, 0, 0, 160));
    painter.fillRect(0, 0, 110, 61, color);
    painter.setPen(Qt::white);
    painter.drawText(6, 72, rgb);
    painter.drawText(6, 89, cmy);
    painter.end();
    QCOMPARE(insideOf(&frame), expected.copy(1, 1, 108, 94));
}

void TestSampler::outsideThePicture()
{
    QCursor::setPos(300, 300);
    const Run run;
    QMouseEvent move(QEvent::MouseMove, QPointF(-3, 10), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(run.window.get(), &move);
    QCoreApplication::processEvents();
    QCOMPARE(run.frame->pos(), QPoint(1, 36));
    run.press();
    QVERIFY(run.colors.isEmpty());
    QVERIFY(!run.window->isVisible());
}

void TestSampler::manyRuns()
{
    for (int i = 0; i < 12; ++i) {
        const QPoint position(90 * i + 20, 70 * i + 20);
        QCursor::setPos(position);
        const Run run;
        if (i % 3 == 0) {
            run.press();
            QCOMPARE(run.picked(), pictureColor(position));
        } else {
            QTest::keyPress(run.window.get(), Qt::Key_Escape);
            QVERIFY(run.colors.isEmpty());
        }
        QVERIFY(!run.window->isVisible());
    }
}

void TestSampler::receiverDeletes()
{
    QCursor::setPos(300, 300);
    Run run;
    const QPointer<Screenshot> window = run.window.release();
    const QPointer<PaintMouseRect> frame = run.frame;
    QColor color;
    connect(window, &Screenshot::screenColor, this, [&](const QColor &picked) {
        color = picked;
        window->deleteLater();
    });
    QTest::mousePress(window, Qt::LeftButton, {}, {300, 300});
    QCOMPARE(color, pictureColor({300, 300}));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!window);
    QVERIFY(!frame);
}

/// On a real screen at scale 2: one pixel of the toolkit is four of the screen.
class TestSamplerScaled : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void window();
    void picks();
};

void TestSamplerScaled::window()
{
    KnownPicture picture;
    picture.show();
    QVERIFY(QTest::qWaitForWindowExposed(&picture));
    QCursor::setPos(100, 100);
    const QImage before = screenPicture();
    QCOMPARE(before.size(), QSize(1280, 1024));
    const Run run;
    QCOMPARE(run.window->size(), QSize(640, 512));
    const QRect shown(600, 600, 600, 400); // far from the frame
    QVERIFY(before.copy(shown) == screenPicture().copy(shown));
}

/// The pointer's numbers are taken as those of the picture's pixel, which are half as far.
void TestSamplerScaled::picks()
{
    KnownPicture picture;
    picture.show();
    QVERIFY(QTest::qWaitForWindowExposed(&picture));
    QCursor::setPos(50, 50);
    Run run;
    QVERIFY(run.moveTo({400, 300}));
    run.press();
    QVERIFY(pictureColor({400, 300}) != pictureColor({200, 150}));
    QCOMPARE(run.picked(), pictureColor({200, 150}));
}

/// Where the platform does not tell what is on the screen.
class TestSamplerBlind : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void opensWithoutColor();
    void ends_data();
    void ends();
};

void TestSamplerBlind::opensWithoutColor()
{
    const Run run;
    QVERIFY(run.window->isVisible());
    QVERIFY(run.frame->isVisible());
    const QImage inside = insideOf(run.frame);
    QImage dim(inside.size(), inside.format());
    dim.fill(QColor(0, 0, 0, 160));
    QCOMPARE(inside, dim);
    verifyNothingElseEnds(run);
}

void TestSamplerBlind::ends_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("press") << 0;
    QTest::newRow("Alt") << int(Qt::Key_Alt);
    QTest::newRow("Escape") << int(Qt::Key_Escape);
}

void TestSamplerBlind::ends()
{
    QFETCH(int, key);
    for (int i = 0; i < 10; ++i) {
        const Run run;
        if (key == 0)
            run.press();
        else
            QTest::keyPress(run.window.get(), Qt::Key(key));
        QVERIFY(!run.window->isVisible());
        QVERIFY(run.colors.isEmpty());
    }
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
    if (QGuiApplication::platformName() == QLatin1String("offscreen"))
        return runTest<TestSamplerBlind>(argc, argv);
    if (app.devicePixelRatio() > 1)
        return runTest<TestSamplerScaled>(argc, argv);
    return runTest<TestSampler>(argc, argv);
}

} // namespace

/// Runs the tests on an X server of their own, or on the headless platform if the environment asks for it.
int main(int argc, char **argv)
{
    if (qgetenv("QT_QPA_PLATFORM") == "offscreen")
        return runOnPlatform(argc, argv);

    const Support::XServer server;
    return runOnPlatform(argc, argv);
}
#include "tst_sampler.moc"
