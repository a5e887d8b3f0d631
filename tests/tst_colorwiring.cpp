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
        wiring.serve(&first);
        wiring.serve(&second);
        wiring.serve(&bar);
        auto *hex = wiring.popup()->findChild<TavikLineEdit *>();

        first.click();
        QCOMPARE(wiring.popup()->currentColor(), QColor(Qt::red).toHsv());
        second.click();
        hex->setText(QStringLiteral("123456"));
        QCOMPARE(second.currentColor(), QColor(0x123456));
        QCOMPARE(first.currentColor(), QColor(Qt::red));

        bar.setSelectedSide(TavikGradientBar::EndSide);
        Q_EMIT bar.colorPopupRequest(QPoint(), bar.endColor());
        bar.setSelectedSide(TavikGradientBar::StartSide); // is too late for the popup that is open
        hex->setText(QStringLiteral("654321"));
        hex->setText(QStringLiteral("65432")); // half-typed, and no colour
        QCOMPARE(bar.endColor(), QColor(0x654321));
        QCOMPARE(bar.startColor(), QColor(Qt::white));
        QCOMPARE(second.currentColor(), QColor(0x123456));
    }

    void forgetsWhatIsGone()
    {
        allowWarning(QStringLiteral("This plugin does not support"));
        TavikColorButton other;
        auto *button = new TavikColorButton;
        auto *wiring = new TavikColorWiring;
        wiring->serve(static_cast<TavikGradientBar *>(nullptr));
        wiring->serve(&other);
        wiring->serve(button);
        wiring->serve(button);
        QSignalSpy chosen(button, &TavikColorButton::colorChanged);
        const QPointer<TavikColorPopup> popup = wiring->popup();
        auto *hex = popup->findChild<TavikLineEdit *>();
        button->click();
        hex->setText(QStringLiteral("123456"));
        QCOMPARE(chosen.count(), 1);
        delete button;
        hex->setText(QStringLiteral("654321"));
        QCOMPARE(other.currentColor(), QColor(Qt::white));

        delete wiring;
        QVERIFY(!popup);
        other.click();
        TavikColorWiring late;
        late.serve(&other);
        delete late.popup();
        other.click();
    }
};

TAVIK_TEST_MAIN(TestColorWiring)
#include "tst_colorwiring.moc"
