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
    void indicators_data();
    void indicators();
    void spinboxes();
    void spinboxStepButtonsComeAndGo();
    void wheelEnds_data();
    void wheelEnds();
    void comboBoxTypes();
    void comboBoxWheel();
    void comboBoxItemHeight();
    void comboBoxDeletedWhileOpen();
    void fontFamilies();
    void sliderUnits();
    void sliderColours();
    void rule();
};

using Maker = std::function<QWidget *(QWidget *)>;
Q_DECLARE_METATYPE(Maker)

void TestInputs::checkAndRadioStoreRem()
{
    TavikCheckBox box(QStringLiteral("text"));
    TavikRadioButton radio(QStringLiteral("text"));
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

void TestInputs::indicators_data()
{
    QTest::addColumn<bool>("isRadio");
    QTest::addColumn<QString>("state");
    QTest::addColumn<QColor>("colour");
    const QColor grey("#BFBFBF");
    const QColor green("#08A274");
    QTest::newRow("box") << false << QStringLiteral("rest") << grey;
    QTest::newRow("box hover") << false << QStringLiteral("hover") << green;
    QTest::newRow("box checked") << false << QStringLiteral("checked") << green;
    QTest::newRow("box disabled") << false << QStringLiteral("disabled") << grey;
    QTest::newRow("radio") << true << QStringLiteral("rest") << grey;
    QTest::newRow("radio hover") << true << QStringLiteral("hover") << QColor("#13B585");
    QTest::newRow("radio pressed") << true << QStringLiteral("hover pressed") << QColor("#138765");
    QTest::newRow("radio checked") << true << QStringLiteral("checked") << green;
}

void TestInputs::indicators()
{
    QFETCH(bool, isRadio);
    QFETCH(QString, state);
    TavikCheckBox box;
    box.setIndicatorSz(6.0);
    box.updateStyleSheet();
    TavikRadioButton radio;
    radio.setIndicatorSz(6.0);
    radio.updateStyleSheet();
    QAbstractButton *button = isRadio ? static_cast<QAbstractButton *>(&radio) : &box;
    button->setChecked(state.contains(QLatin1String("checked")));
    button->setEnabled(!state.contains(QLatin1String("disabled")));
    button->show();
    button->resize(100, 100);
    if (state.contains(QLatin1String("hover")))
        Support::hover(button);
    button->setDown(state.contains(QLatin1String("pressed")));
    // Down the middle of the indicator, 72 pixels wide, its outline is the first thing that is drawn.
    const QImage picture = Support::picture(button);
    QFETCH(QColor, colour);
    int hits = 0;
    for (int y = 14; y < 32; ++y)
        hits += picture.pixelColor(38, y) == colour;
    QVERIFY2(hits >= 3, qPrintable(QString::number(hits)));
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

void TestInputs::comboBoxItemHeight()
{
    LenConverter::m_rem = 24;
    TavikComboBox box;
    box.addItem(QStringLiteral("a"));
    box.setFontRemSz(0.5);
    box.show();
    box.showPopup();
    // 20 design pixels, whatever the font size is.
    QCOMPARE(box.view()->visualRect(box.model()->index(0, 0)).height(), 40);
    box.hidePopup();
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

void TestInputs::sliderColours()
{
    TavikSlider slider(200, 24);
    slider.setValue(50);
    slider.show();
    const QImage picture = Support::picture(&slider);
    QCOMPARE(picture.pixelColor(40, 12), QColor("#08a274"));
    QCOMPARE(picture.pixelColor(100, 12), QColor("#ffffff"));
    QCOMPARE(picture.pixelColor(160, 12), QColor("#d0d0d0"));
}

void TestInputs::rule()
{
    LenConverter::m_rem = 18;
    QCOMPARE(TavikSeperateLine(100).minimumSize(), QSize(100, 1));
    QCOMPARE(TavikSeperateLine(10.03).maximumSize(), QSize(181, 1));
    TavikSeperateLine line(280);
    QVERIFY(line.hasScaledContents());
    const QImage picture = Support::picture(&line);
    QVERIFY(picture.pixelColor(150, 0).red() < 245); // light grey over the ground, softened by its slope
    TavikSeperateLine free;
    free.resize(50, 10);
    QCOMPARE(free.size(), QSize(50, 1));
}

TAVIK_TEST_MAIN(TestInputs)
#include "tst_inputs.moc"
