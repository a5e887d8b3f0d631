#include "support.h"

#include <Tavik/TavikColorButton>
#include <Tavik/TavikColorPopup>
#include <Tavik/TavikColorWiring>
#include <Tavik/TavikGradientBar>
#include <Tavik/TavikLineEdit>

/// One popup for all controls.
class TestColorWiring : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void answersTheOneThatAskedLast()
    {
        allowWarning(QStringLiteral("This plugin does not support"));
        QWidget window;
        TavikColorWiring wiring(&window);
        TavikColorButton first(Qt::red, &window);
        TavikColorButton second(Qt::blue, &window);
        TavikGradientBar bar(16.0, 2.0, &window);
        QSignalSpy firstChanges(&first, &TavikColorButton::colorChanged);
        wiring.serve(&first);
        wiring.serve(&second);
        wiring.serve(&bar);
        auto *hex = wiring.popup()->findChild<TavikLineEdit *>();

        first.click();
        QCOMPARE(wiring.popup()->currentColor(), QColor(Qt::red).toHsv());
        hex->setText(QStringLiteral("abcdef"));
        second.click();
        hex->setText(QStringLiteral("123456"));
        QCOMPARE(second.currentColor(), QColor(0x123456));
        QCOMPARE(firstChanges.count(), 1);

        bar.setSelectedSide(TavikGradientBar::EndSide);
        Q_EMIT bar.colorPopupRequest(QPoint(), bar.endColor());
        bar.setSelectedSide(TavikGradientBar::StartSide); // is too late for the popup that is open
        hex->setText(QStringLiteral("654321"));
        hex->setText(QStringLiteral("65432")); // half-typed, and no colour
        QCOMPARE(bar.endColor(), QColor(0x654321));
        QCOMPARE(bar.startColor(), QColor(Qt::white));
        QCOMPARE(second.currentColor(), QColor(0x123456));
    }

    void outlivesNobody()
    {
        allowWarning(QStringLiteral("This plugin does not support"));
        auto *wiring = new TavikColorWiring;
        TavikColorButton other;
        auto *gone = new TavikColorButton;
        int heard = 0; // by a connection of the application's own
        connect(&other, &TavikColorButton::showPopup, wiring, [&heard] { ++heard; });
        wiring->serve(static_cast<TavikGradientBar *>(nullptr));
        wiring->serve(&other);
        wiring->serve(gone);
        const QPointer<TavikColorPopup> popup = wiring->popup();
        other.click();
        gone->click();
        delete gone;
        popup->findChild<TavikLineEdit *>()->setText(QStringLiteral("654321"));
        QCOMPARE(other.currentColor(), QColor(Qt::white));
        QCOMPARE(heard, 1);

        delete wiring;
        QVERIFY(!popup);
        TavikColorWiring late;
        late.serve(&other);
        delete late.popup();
        other.click();
    }
};

TAVIK_TEST_MAIN(TestColorWiring)
#include "tst_colorwiring.moc"
