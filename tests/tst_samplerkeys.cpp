#include "support.h"
#include "xserver.h"

#include <Tavik/LenConverter>
#include <Tavik/Tavik>

#include <QPainter>
#include <QScreen>
#include <QSignalSpy>

/// A colour taken off a real screen with the keyboard alone.
class TestSamplerKeys : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void picks_data();
    void picks();
};

namespace {

/// A desktop on which no two pixels side by side have the same colour.
class Desktop : public QWidget
{
public:
    Desktop()
    {
        setWindowFlags(Qt::BypassWindowManagerHint);
        setGeometry(QGuiApplication::primaryScreen()->geometry());
    }

    static QColor colorAt(const QPoint &pos) { return {pos.x() % 256, pos.y() % 256, pos.x() / 256 * 40}; }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QImage image(size(), QImage::Format_RGB32);
        for (int y = 0; y < height(); ++y) {
            for (int x = 0; x < width(); ++x)
                image.setPixelColor(x, y, colorAt({x, y}));
        }
        QPainter(this).drawImage(0, 0, image);
    }
};

QWidget *openSampler()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->inherits("Screenshot"))
            return window;
    }
    return nullptr;
}

} // namespace

void TestSamplerKeys::picks_data()
{
    QTest::addColumn<QVector<int>>("keys");
    QTest::addColumn<QPoint>("way");
    using Keys = QVector<int>;
    QTest::newRow("where it is") << Keys{Qt::Key_Return} << QPoint(0, 0);
    QTest::newRow("arrows") << Keys{Qt::Key_Right, Qt::Key_Right, Qt::Key_Up, Qt::Key_Space}
                            << QPoint(2, -1);
    QTest::newRow("ten") << Keys{Qt::Key_PageDown, Qt::SHIFT + Qt::Key_Left, Qt::Key_Enter}
                         << QPoint(-10, 10);
    QTest::newRow("left without") << Keys{Qt::Key_Down, Qt::Key_Escape} << QPoint();
}

void TestSamplerKeys::picks()
{
    QFETCH(QVector<int>, keys);
    QFETCH(QPoint, way);
    const QPoint from(300, 400);
    Desktop desktop;
    desktop.show();
    QVERIFY(QTest::qWaitForWindowExposed(&desktop));
    QCursor::setPos(from);
    TavikColorPopup popup;
    TavikKeyboardAccess::install(&popup);
    QSignalSpy changed(&popup, &TavikColorPopup::colorChanged);
    popup.showColorPopup({800, 100}, Qt::red);
    QVERIFY(QTest::qWaitForWindowExposed(&popup));

    QTest::keyClick(popup.findChild<TavikColorPicker *>(), Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QTRY_VERIFY(openSampler());
    QVERIFY(QTest::qWaitForWindowExposed(openSampler()));
    for (const int key : qAsConst(keys)) {
        const int modifiers = key & Qt::KeyboardModifierMask;
        QTest::keyClick(openSampler(), Qt::Key(key & ~modifiers), Qt::KeyboardModifiers(modifiers));
    }
    QVERIFY(!openSampler());
    if (keys.last() == Qt::Key_Escape) {
        QCOMPARE(changed.count(), 0);
        return;
    }
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().value<QColor>(), Desktop::colorAt(from + way));
    QCOMPARE(QCursor::pos(), from + way);
}

int main(int argc, char **argv)
{
    const XServer server(1280, 1024);
    QApplication app(argc, argv);
    TestSamplerKeys test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_samplerkeys.moc"
