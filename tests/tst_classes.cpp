#include "support.h"

#include <Tavik/LenConverter>
#include <Tavik/Tavik>

#include <QLayout>
#include <QScrollBar>

#include <functional>
#include <memory>

/// What holds for every control: how it can be made, what its meta-object has, and what its style sheets
/// are.
class TestClasses : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void madeFromAParent_data();
    void madeFromAParent();
    void madeBeforeTheRemIsChosen_data() { madeFromAParent_data(); }
    void madeBeforeTheRemIsChosen();
    void sheets_data();
    void sheets();
};

namespace {

using Maker = std::function<QWidget *(QWidget *parent)>;
using Widget = std::unique_ptr<QWidget>;
using SheetMaker = std::function<QString()>;

struct Members
{
    int methods = 0; // signals and slots
    int properties = 0;
};

template <class Class, class Base>
void addClass(const char *name, Members members = {})
{
    QTest::newRow(name) << Maker([](QWidget *parent) { return new Class(parent); })
                        << &Base::staticMetaObject << members.methods << members.properties;
}

template <class Class, class... Arguments>
SheetMaker sheetOf(Arguments... arguments)
{
    return [=] { return Class(arguments...).styleSheet(); };
}

/// The sheet after all properties have changed.
template <class Control>
QString changedSheet()
{
    Control control;
    if constexpr (std::is_same_v<Control, TavikCheckBox>)
        control.setFontColor(QStringLiteral("#123456"));
    control.setFontRemSz(2.0);
    control.setIndicatorSz(1.5);
    LenConverter::m_rem = 10; // sizes are stored in rem, and converted when the sheet is built
    control.updateStyleSheet();
    return control.styleSheet();
}

/// The title row, the contents and the inner box of a panel.
QString expandableSheet(int box)
{
    const TavikExpandable panel(QStringLiteral("title"), 5.0, nullptr);
    return panel.findChildren<TavikContainer *>().at(box)->styleSheet();
}

QString comboBoxSheet(bool ofView, int rem, double fontRem)
{
    LenConverter::m_rem = rem;
    TavikComboBox box;
    if (fontRem > 0)
        box.setFontRemSz(fontRem);
    return ofView ? box.view()->styleSheet() : box.styleSheet();
}

} // namespace

Q_DECLARE_METATYPE(Maker)
Q_DECLARE_METATYPE(SheetMaker)
Q_DECLARE_METATYPE(const QMetaObject *)

void TestClasses::madeFromAParent_data()
{
    QTest::addColumn<Maker>("make");
    QTest::addColumn<const QMetaObject *>("base");
    QTest::addColumn<int>("methods");
    QTest::addColumn<int>("properties");
    addClass<TavikLabel, QLabel>("TavikLabel");
    addClass<TavikButton, QPushButton>("TavikButton");
    addClass<TavikButtonGroup, QWidget>("TavikButtonGroup", {2, 0});
    addClass<TavikCheckBox, QCheckBox>("TavikCheckBox");
    addClass<TavikRadioButton, QRadioButton>("TavikRadioButton");
    addClass<TavikLineEdit, QLineEdit>("TavikLineEdit");
    addClass<TavikSpinbox, QSpinBox>("TavikSpinbox");
    addClass<TavikDoubleSpinbox, QDoubleSpinBox>("TavikDoubleSpinbox");
    addClass<TavikComboBox, QComboBox>("TavikComboBox");
    addClass<TavikFontFamilyComboBox, TavikComboBox>("TavikFontFamilyComboBox");
    addClass<TavikSlider, QSlider>("TavikSlider");
    addClass<TavikDial, QDial>("TavikDial");
    addClass<TavikSeperateLine, QLabel>("TavikSeperateLine");
    addClass<TavikContainer, QWidget>("TavikContainer");
    addClass<TavikExpandable, QWidget>("TavikExpandable", {3, 1});
    addClass<TavikScrollArea, QScrollArea>("TavikScrollArea");
    addClass<TavikImageList, QListWidget>("TavikImageList");
    addClass<TavikColorButton, QPushButton>("TavikColorButton", {3, 0});
    addClass<TavikColorPicker, QWidget>("TavikColorPicker", {1, 0});
    addClass<TavikColorSilder, QSlider>("TavikColorSilder");
    addClass<TavikColorWell, QWidget>("TavikColorWell", {2, 0});
    addClass<TavikGradientBar, QWidget>("TavikGradientBar", {5, 0});
}

void TestClasses::madeFromAParent()
{
    QFETCH(Maker, make);
    QFETCH(const QMetaObject *, base);
    QWidget parent;
    const QWidget *control = make(&parent);
    QCOMPARE(control->parentWidget(), &parent);

    const QMetaObject *meta = control->metaObject();
    QCOMPARE(meta->className(), QTest::currentDataTag());
    QCOMPARE(meta->superClass(), base);
    QTEST(meta->methodCount() - meta->methodOffset(), "methods");
    QTEST(meta->propertyCount() - meta->propertyOffset(), "properties");
    QCOMPARE(meta->enumeratorCount(), meta->enumeratorOffset());
    const Widget orphan(make(nullptr));
    QVERIFY(!orphan->parentWidget());
}

void TestClasses::madeBeforeTheRemIsChosen()
{
    QFETCH(Maker, make);
    LenConverter::m_rem = 0;
    allowWarning(QStringLiteral("^QFont::setPixelSize: Pixel size <= 0"));
    QWidget parent;
    parent.resize(200, 100);
    make(&parent)->setGeometry(0, 0, 100, 50);
    parent.show();
    Support::picture(&parent);
}

void TestClasses::sheets_data()
{
    QTest::addColumn<SheetMaker>("sheet");
    const auto add = [](const char *file, const SheetMaker &sheet) { QTest::newRow(file) << sheet; };
    add("checkbox-12", sheetOf<TavikCheckBox>());
    add("checkbox-changed-10", changedSheet<TavikCheckBox>);
    add("radiobutton-12", sheetOf<TavikRadioButton>());
    add("radiobutton-changed-10", changedSheet<TavikRadioButton>);
    for (int type = TavikLineEdit::Text; type <= TavikLineEdit::HexDigits; ++type)
        add("lineedit-12", sheetOf<TavikLineEdit>(QString(), TavikLineEdit::Type(type)));
    add("spinbox-12", sheetOf<TavikSpinbox>(0, 9));
    add("spinbox-hidden-12", sheetOf<TavikSpinbox>(0, 9, 1, nullptr, true));
    add("spinbox-hidden-24", sheetOf<TavikSpinbox>(0, 9, 1, nullptr, true, 2.0));
    add("doublespinbox-12", sheetOf<TavikDoubleSpinbox>(0.0, 9.0));
    add("combobox-12", [] { return comboBoxSheet(false, 12, 0); });
    add("combobox-view-12", [] { return comboBoxSheet(true, 12, 0); });
    add("combobox-18", [] { return comboBoxSheet(false, 18, 1.5); });
    add("combobox-view-18", [] { return comboBoxSheet(true, 18, 1.5); });
    add("combobox-12", sheetOf<TavikComboBox>(TavikComboBox::Editable));
    add("combobox-12", sheetOf<TavikFontFamilyComboBox>());
    add("slider", sheetOf<TavikSlider>(100, 20));
    add("slider", sheetOf<TavikSlider>());
    const QString grey = QStringLiteral("#d3d3d3");
    add("container", sheetOf<TavikContainer>(Vertical, QStringLiteral("#ececec"), QStringLiteral("1"), grey,
                                             QStringLiteral("2"), QStringLiteral("0")));
    add("container-transparent", sheetOf<TavikContainer>(Horizontal));
    add("container", [] { return expandableSheet(0); });
    add("expandable-content", [] { return expandableSheet(1); });
    add("expandable-inner", [] { return expandableSheet(2); });
    add("scrollarea", sheetOf<TavikScrollArea>(QStringLiteral("2"), QStringLiteral("#010203"),
                                               QStringLiteral("#fafafa")));
    add("scrollarea-plain", sheetOf<TavikScrollArea>());
    add("imagelist", sheetOf<TavikImageList>());
    add("scrollbar-without-right",
        [] { return TavikComboBox().view()->verticalScrollBar()->styleSheet(); });
    add("scrollbar-without-right", [] { return TavikScrollArea().verticalScrollBar()->styleSheet(); });
    add("scrollbar-all-sides", [] { return TavikImageList().verticalScrollBar()->styleSheet(); });
    add("colorbutton", sheetOf<TavikColorButton>(QColor(1, 2, 3, 4)));
    add("", sheetOf<TavikDial>());
    add("", sheetOf<TavikSeperateLine>(100));
}

void TestClasses::sheets()
{
    QFETCH(SheetMaker, sheet);
    const QString file = QString::fromLatin1(QTest::currentDataTag());
    QCOMPARE(sheet(), file.isEmpty() ? QString() : Support::expectedSheet(file));
}

TAVIK_TEST_MAIN(TestClasses)
#include "tst_classes.moc"
