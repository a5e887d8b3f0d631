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

protected:
    /// Puts the sampler where the primary screen is to begin: this server's only one is at the origin.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QPoint m_origin;
};

void TestSamplerKeys::picks_data()
{
    QTest::addColumn<QVector<int>>("keys");
    QTest::addColumn<QPoint>("way");
    QTest::addColumn<QPoint>("origin"); // of the sampler's screen
    using Keys = QVector<int>;
    QTest::newRow("where it is") << Keys{Qt::Key_Return} << QPoint(0, 0) << QPoint();
    QTest::newRow("arrows") << Keys{Qt::Key_Right, Qt::Key_Right, Qt::Key_Up, Qt::Key_Space}
                            << QPoint(2, -1) << QPoint();
    QTest::newRow("ten") << Keys{Qt::Key_PageDown, int(Qt::SHIFT) + Qt::Key_Left, Qt::Key_Enter}
                         << QPoint(-10, 10) << QPoint();
    QTest::newRow("left without") << Keys{Qt::Key_Down, Qt::Key_Escape} << QPoint() << QPoint();
    QTest::newRow("where it is, elsewhere") << Keys{Qt::Key_Return} << QPoint(0, 0) << QPoint(150, 90);
    QTest::newRow("arrows, elsewhere")
        << Keys{Qt::Key_Right, Qt::Key_Space} << QPoint(1, 0) << QPoint(150, 90);
    QTest::newRow("from another screen") // to the nearest place on the sampler's
        << Keys{Qt::Key_Right, Qt::Key_Space} << QPoint(101, 100) << QPoint(400, 500);
}

bool TestSamplerKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show && watched->inherits("Screenshot"))
        static_cast<QWidget *>(watched)->move(m_origin);
    return false;
}

void TestSamplerKeys::picks()
{
    QFETCH(QVector<int>, keys);
    QFETCH(QPoint, way);
    QFETCH(QPoint, origin);
    m_origin = origin;
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
    QCOMPARE(changed.first().first().value<QColor>(), KnownPicture::colorAt(from - origin + way));
    QCOMPARE(QCursor::pos(), from + way);
}

int main(int argc, char **argv)
{
    const XServer server(1280, 1024);
    QApplication app(argc, argv);
    TestSamplerKeys test;
    app.installEventFilter(&test);
    return QTest::qExec(&test, argc, argv);
}
#include "tst_samplerkeys.moc"
