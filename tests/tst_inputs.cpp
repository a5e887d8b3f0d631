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
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>

#include <functional>

/// The controls that take a value: check boxes, spin boxes, combo boxes, sliders.
class TestInputs : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void checkAndRadioStoreRem();
    void spinboxes();
    void spinboxStepButtonsComeAndGo();
    void wheelEnds_data();
    void wheelEnds();
    void comboBoxTypes();
    void comboBoxWheel();
    void comboBoxDeletedWhileOpen();
    void fontFamilies();
    void sliderUnits();
    void rule();
};

using Maker = std::function<QWidget *(QWidget *)>;
Q_DECLARE_METATYPE(Maker)

void TestInputs::checkAndRadioStoreRem()
{
    TavikCheckBox box(QStringLiteral("text"));
    TavikRadioButton radio(QStringLiteral("text"));
    QCOMPARE(box.font().hintingPreference(), QFont::PreferVerticalHinting);
    QCOMPARE(radio.font().hintingPreference(), QFont::PreferVerticalHinting);
    const QString boxSheet = box.styleSheet();
    const QString radioSheet = radio.styleSheet();
    box.setFontRemSz(2.0);
    box.setIndicatorSz(3.0);
    box.setFontColor(QStringLiteral("#123456"));
    radio.setFontRemSz(2.0);
    radio.setIndicatorSz(3.0);
    QCOMPARE(box.fontRemSz() + radio.fontRemSz(), 4.0);
    QCOMPARE(box.indicatorSz() + radio.indicatorSz(), 6.0);
    QCOMPARE(box.fontColor(), QStringLiteral("#123456"));
    QCOMPARE(box.styleSheet(), boxSheet);
    QCOMPARE(radio.styleSheet(), radioSheet);
}

void TestInputs::spinboxes()
{
    LenConverter::m_rem = 10;
    QWidget parent;
    TavikSpinbox whole(-5, 5, 2, &parent);
    QCOMPARE(whole.minimum(), -5);
    QCOMPARE(whole.maximum(), 5);
    QCOMPARE(whole.singleStep(), 2);
    TavikDoubleSpinbox fraction(-0.5, 0.5, 0.125, &parent);
    QCOMPARE(fraction.minimum(), -0.5);
    QCOMPARE(fraction.maximum(), 0.5);
    QCOMPARE(fraction.singleStep(), 0.125);
    QCOMPARE(fraction.decimals(), 2);
    for (QAbstractSpinBox *box :
         {static_cast<QAbstractSpinBox *>(&whole), static_cast<QAbstractSpinBox *>(&fraction)}) {
        QCOMPARE(box->alignment(), Qt::AlignHCenter);
        QCOMPARE(box->font().hintingPreference(), QFont::PreferVerticalHinting);
        QCOMPARE(box->parentWidget(), &parent);
    }
    whole.setRemSize(8, 2);
    QCOMPARE(whole.size(), QSize(80, 20));
    fraction.setFontRemSz(2.0);
    QVERIFY(fraction.styleSheet().contains(QLatin1String(";font-size: 20px;")));

    const QSpinBox stock;
    const TavikSpinbox plain;
    QCOMPARE(plain.minimum(), stock.minimum());
    QCOMPARE(plain.maximum(), stock.maximum());
    const QDoubleSpinBox stockDouble;
    const TavikDoubleSpinbox plainDouble;
    QCOMPARE(plainDouble.maximum(), stockDouble.maximum());
    QCOMPARE(TavikSpinbox(9, 3).maximum(), 9);
    QCOMPARE(TavikDoubleSpinbox(9.0, 3.0).maximum(), 9.0);
}

void TestInputs::spinboxStepButtonsComeAndGo()
{
    TavikSpinbox box(0, 9, 1, nullptr, true, -1.0); // a font size below 0 is one too
    QVERIFY(box.styleSheet().contains(QLatin1String(";font-size: -12px;")));
    box.setFontRemSz(1.167);
    QCOMPARE(box.styleSheet(), Support::expectedSheet(QStringLiteral("spinbox-12")));
    box.updateStyleSheetHideStepBut();
    QCOMPARE(box.styleSheet(), Support::expectedSheet(QStringLiteral("spinbox-hidden-12")));
    box.show();
    QTest::keyClick(&box, Qt::Key_Up);
    QCOMPARE(box.value(), 1);
}

void TestInputs::wheelEnds_data()
{
    QTest::addColumn<Maker>("make");
    QTest::addColumn<bool>("scrolls");
    QTest::newRow("spin box") << Maker([](QWidget *parent) { return new TavikSpinbox(0, 99, 1, parent); })
                              << false;
    QTest::newRow("double spin box") << Maker([](QWidget *parent) {
        return new TavikDoubleSpinbox(0, 99, 1, parent);
    }) << false;
    QTest::newRow("slider") << Maker([](QWidget *parent) { return new TavikSlider(100, 20, parent); })
                            << false;
    QTest::newRow("dial") << Maker([](QWidget *parent) { return new TavikDial(parent); }) << false;
    QTest::newRow("what has no use for it")
        << Maker([](QWidget *parent) { return new QWidget(parent); }) << true;
}

void TestInputs::wheelEnds()
{
    QFETCH(Maker, make);
    QFETCH(bool, scrolls);
    QScrollArea area;
    auto *content = new QWidget;
    content->resize(200, 2000);
    QWidget *control = make(content);
    area.setWidget(content);
    area.resize(200, 200);
    area.show();
    control->setProperty("value", 50);
    const QVariant before = control->property("value");
    Support::turnWheel(control);
    QCOMPARE(control->property("value"), before);
    QCOMPARE(area.verticalScrollBar()->value() > 0, scrolls);
}

void TestInputs::comboBoxTypes()
{
    QWidget parent;
    const TavikComboBox readOnly(TavikComboBox::ReadOnly, &parent);
    const TavikComboBox editable(TavikComboBox::Editable, &parent);
    const TavikComboBox outside(TavikComboBox::Type(5), &parent);
    QVERIFY(!readOnly.isEditable() && editable.isEditable() && !outside.isEditable());
    QCOMPARE(readOnly.view()->metaObject()->className(), "QListView");
    for (const QWidget *part : QWidgetList{editable.view(), editable.lineEdit()})
        QCOMPARE(part->font().hintingPreference(), QFont::PreferVerticalHinting);
    QCOMPARE(readOnly.font().hintingPreference(), QFont::PreferVerticalHinting);
    // What the toolkit gives an editable box is left alone.
    QVERIFY(editable.completer());
    QCOMPARE(editable.insertPolicy(), QComboBox::InsertAtBottom);
}

void TestInputs::comboBoxWheel()
{
    TavikComboBox box;
    box.addItems({QStringLiteral("a"), QStringLiteral("b")});
    box.show();
    Support::turnWheel(&box);
    QCOMPARE(box.currentIndex(), 1);
}

void TestInputs::comboBoxDeletedWhileOpen()
{
    auto *window = new QWidget;
    auto *box = new TavikComboBox(window);
    box->addItems({QStringLiteral("a"), QStringLiteral("b")});
    window->show();
    box->showPopup();
    const QPointer<QAbstractItemView> view = box->view();
    delete window;
    QVERIFY(!view);
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
    box.setEditable(false);
    box.initFontFamilies(); // without a field there is nothing to complete
    QCOMPARE(box.findChildren<QCompleter *>().size(), 1);
}

void TestInputs::sliderUnits()
{
    QCOMPARE(TavikSlider(100, 20).size(), QSize(100, 20));
    QCOMPARE(TavikSlider(10.0, 2).size(), QSize(120, 24));
    QCOMPARE(TavikSlider(10.0, 2).minimumSize(), QSize(120, 24));
    TavikSlider free;
    QCOMPARE(free.orientation(), Qt::Horizontal);
    QVERIFY(free.maximumWidth() > 1000);
    free.show();
    QTest::keyClick(&free, Qt::Key_Right);
    QCOMPARE(free.value(), 1);
}

void TestInputs::rule()
{
    LenConverter::m_rem = 18;
    QCOMPARE(TavikSeperateLine(100).minimumSize(), QSize(100, 1));
    QCOMPARE(TavikSeperateLine(10.03).maximumSize(), QSize(181, 1));
    TavikSeperateLine line(560); // twice as wide as its picture
    line.setPalette(QPalette(Qt::black, Qt::white));
    QVERIFY(Support::picture(&line).pixelColor(500, 0) != QColor(Qt::white));
    QCOMPARE(TavikSeperateLine().minimumSize(), QSize(1, 1));
    QCOMPARE(TavikSeperateLine().maximumHeight(), 1);
}

TAVIK_TEST_MAIN(TestInputs)
#include "tst_inputs.moc"
