#include "support.h"

#include <Tavik/LenConverter>
#include <Tavik/TavikCheckBox>
#include <Tavik/TavikComboBox>
#include <Tavik/TavikDial>
#include <Tavik/TavikDoubleSpinbox>
#include <Tavik/TavikFontFamilyComboBox>
#include <Tavik/TavikRadioButton>
#include <Tavik/TavikSeperateLine>
#include <Tavik/TavikSlider>
#include <Tavik/TavikSpinbox>

#include <QCompleter>
#include <QFontDatabase>
#include <QLineEdit>
#include <QListView>
#include <QScrollArea>
#include <QScrollBar>

/// The controls that take a value: check boxes, spin boxes, combo boxes, sliders.
class TestInputs : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void spinboxes();
    void wheelEnds();
    void comboBoxes();
    void fontFamilies();
    void sliderUnits();
    void rule();
};

void TestInputs::spinboxes()
{
    LenConverter::m_rem = 10;
    const TavikSpinbox mirrored(0, 9, 1, nullptr, true, -1.0); // a font size below 0 is one too
    QVERIFY(mirrored.styleSheet().contains(QLatin1String(";font-size: -10px;")));
    TavikSpinbox whole(-5, 5, 2, nullptr, true);
    QCOMPARE(whole.minimum(), -5);
    QCOMPARE(whole.maximum(), 5);
    QCOMPARE(whole.alignment(), Qt::AlignHCenter);
    whole.setRemSize(8, 2);
    QCOMPARE(whole.size(), QSize(80, 20));
    whole.show();
    QTest::keyClick(&whole, Qt::Key_Up); // its buttons are hidden
    QCOMPARE(whole.value(), 2);
    TavikDoubleSpinbox fraction(-0.5, 0.5, 0.125);
    QCOMPARE(fraction.minimum(), -0.5);
    QCOMPARE(fraction.maximum(), 0.5);
    QCOMPARE(fraction.singleStep(), 0.125);
    QCOMPARE(fraction.alignment(), Qt::AlignHCenter);
}

void TestInputs::wheelEnds()
{
    QScrollArea area;
    auto *content = new QWidget;
    content->resize(200, 2000);
    auto *useless = new QWidget(content); // has no use for the wheel
    const QWidgetList controls = {new TavikSpinbox(0, 99, 1, content),
                                  new TavikDoubleSpinbox(0, 99, 1, content),
                                  new TavikSlider(100, 20, content), new TavikDial(content)};
    area.setWidget(content);
    area.resize(200, 200);
    area.show();
    for (QWidget *control : controls) {
        control->setProperty("value", 50);
        Support::turnWheel(control);
        QCOMPARE(control->property("value").toInt(), 50);
        QCOMPARE(area.verticalScrollBar()->value(), 0);
    }
    Support::turnWheel(useless);
    QVERIFY(area.verticalScrollBar()->value() > 0);
}

void TestInputs::comboBoxes()
{
    const TavikComboBox editable(TavikComboBox::Editable);
    QVERIFY(editable.isEditable());
    // What the toolkit gives an editable box is left alone.
    QVERIFY(editable.completer());
    for (const QWidget *part : QWidgetList{editable.view(), editable.lineEdit()})
        QCOMPARE(part->font().hintingPreference(), QFont::PreferVerticalHinting);
    QVERIFY(!TavikComboBox(TavikComboBox::Type(5)).isEditable());
    TavikComboBox box;
    QVERIFY(!box.isEditable());
    box.addItems({QStringLiteral("a"), QStringLiteral("b")});
    box.show();
    Support::turnWheel(&box);
    QCOMPARE(box.currentIndex(), 1);
}

void TestInputs::fontFamilies()
{
    TavikFontFamilyComboBox box;
    const QStringList families = QFontDatabase().families();
    QVERIFY(!families.isEmpty());
    QVERIFY(box.isEditable());
    QCOMPARE(box.insertPolicy(), QComboBox::NoInsert);
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(box.count(), families.size());
        QCOMPARE(box.itemText(box.count() - 1), families.last());
        QCOMPARE(box.findChildren<QCompleter *>().size(), 1);
        QCOMPARE(box.completer(), box.findChild<QCompleter *>());
        QCOMPARE(box.completer()->caseSensitivity(), Qt::CaseInsensitive);
        box.initFontFamilies();
    }
    box.show();
    box.lineEdit()->selectAll();
    QTest::keyClicks(box.lineEdit(), QStringLiteral("no such family"));
    QTest::keyClick(box.lineEdit(), Qt::Key_Return);
    QCOMPARE(box.count(), families.size());
    // Anew while what is typed is completed.
    box.lineEdit()->clear();
    QTest::keyClick(box.lineEdit(), families.first().at(0).toLatin1());
    QWidget *list = QApplication::activePopupWidget();
    QVERIFY(list);
    connect(box.lineEdit(), &QLineEdit::textEdited, &box, &TavikFontFamilyComboBox::initFontFamilies);
    QTimer::singleShot(0, list, [list] {
        QTest::keyClick(list, Qt::Key_Backspace);
        QCoreApplication::exit();
    });
    QCoreApplication::exec();
    QCOMPARE(box.findChildren<QCompleter *>().size(), 1);
    box.setEditable(false);
    box.initFontFamilies(); // without a field there is nothing to complete
    QCOMPARE(box.findChildren<QCompleter *>().size(), 1);
}

void TestInputs::sliderUnits()
{
    QCOMPARE(TavikSlider(100, 20).size(), QSize(100, 20));
    QCOMPARE(TavikSlider(10.0, 2).minimumSize(), QSize(120, 24));
    TavikSlider free;
    free.show();
    QTest::keyClick(&free, Qt::Key_Right);
    QCOMPARE(free.value(), 1);
}

void TestInputs::rule()
{
    LenConverter::m_rem = 18;
    QCOMPARE(TavikSeperateLine(10.03).maximumSize(), QSize(181, 1));
    TavikSeperateLine line(560); // twice as wide as its picture
    line.setPalette(QPalette(Qt::black, Qt::white));
    QVERIFY(Support::picture(&line).pixelColor(500, 0) != QColor(Qt::white));
    QCOMPARE(TavikSeperateLine().minimumSize(), QSize(1, 1));
}

TAVIK_TEST_MAIN(TestInputs)
#include "tst_inputs.moc"
