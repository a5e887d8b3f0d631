#include "support.h"
#include "ui_form.h"

/// A form of Qt Designer in which each of our controls stands once, promoted from the toolkit's.
class TestDesigner : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void showsOurControls();
};

void TestDesigner::showsOurControls()
{
    QWidget window;
    Ui::Form form;
    form.setupUi(&window);
    // What Designer can't fill, because it brings a layout of its own.
    form.alignGroup->addTextButton(QStringLiteral("Left"));
    form.alignGroup->addTextButton(QStringLiteral("Right"));
    form.buttons->addWidget(new TavikLabel(QStringLiteral("Two changes")));
    form.effects->setTitle(QStringLiteral("Effects"));
    auto *shadow = new TavikCheckBox(QStringLiteral("Shadow"));
    form.effects->addWidget(shadow);
    form.effects->updateExpandedHeight(2.5);
    form.effects->expand();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    QStringList shown;
    const auto children = window.findChildren<QWidget *>();
    for (const QWidget *child : children) {
        if (!child->visibleRegion().isEmpty())
            shown.append(QLatin1String(child->metaObject()->className()));
    }
    const QStringList controls = QStringLiteral(TAVIK_CONTROLS).split(QLatin1Char(' '));
    for (const QString &control : controls)
        QVERIFY2(shown.contains(control), qPrintable(control));
    QTRY_COMPARE(form.effects->remExpandHeight(), 2.5);
    QVERIFY(shadow->visibleRegion().boundingRect().size() == shadow->size());
    QCOMPARE(form.nameEdit->placeholderText(), QStringLiteral("Layer 1"));
    QCOMPARE(form.opacityBox->value(), 80);
    QVERIFY(form.visibleBox->isChecked());
    QCOMPARE(form.applyButton->styleSheet(), Support::expectedSheet(QStringLiteral("button-solid-12")));
    QCOMPARE(form.nameEdit->styleSheet(), Support::expectedSheet(QStringLiteral("lineedit-12")));
    QCOMPARE(Support::picture(form.applyButton).pixelColor(5, 5), QColor(0x08, 0xa2, 0x74));
}

TAVIK_TEST_MAIN(TestDesigner)

#include "tst_designer.moc"
