#include "knownpicture.h"
#include "xserver.h"

#include <Tavik/LenConverter>
#include <Tavik/Tavik>

/// A colour taken off a real screen with the keyboard alone.
class TestSamplerKeys : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void picks_data();
    void picks();
};

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
    const KnownPicture picture;
    QCursor::setPos(from);
    TavikColorPopup popup;
    TavikKeyboardAccess::install(&popup);
    QSignalSpy changed(&popup, &TavikColorPopup::colorChanged);
    popup.showColorPopup({800, 100}, Qt::red);
    QVERIFY(QTest::qWaitForWindowExposed(&popup));

    QTest::keyClick(popup.findChild<TavikColorPicker *>(), Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QTRY_VERIFY(Support::runningSampler());
    QVERIFY(QTest::qWaitForWindowExposed(Support::runningSampler()));
    for (const int key : qAsConst(keys)) {
        const int modifiers = key & Qt::KeyboardModifierMask;
        QTest::keyClick(Support::runningSampler(), Qt::Key(key & ~modifiers),
                        Qt::KeyboardModifiers(modifiers));
    }
    QVERIFY(!Support::runningSampler());
    if (keys.last() == Qt::Key_Escape) {
        QCOMPARE(changed.count(), 0);
        return;
    }
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().value<QColor>(), KnownPicture::colorAt(from + way));
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
