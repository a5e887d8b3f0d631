#include "classes.h"
#include "support.h"

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

using Widget = std::unique_ptr<QWidget>;
using SheetMaker = std::function<QString()>;

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

Q_DECLARE_METATYPE(const Support::ControlClass *)
Q_DECLARE_METATYPE(SheetMaker)

void TestClasses::madeFromAParent_data()
{
    QTest::addColumn<const Support::ControlClass *>("control");
    for (const Support::ControlClass &control : Support::controlClasses())
        QTest::newRow(control.name) << &control;
}

void TestClasses::madeFromAParent()
{
    QFETCH(const Support::ControlClass *, control);
    QWidget parent;
    const QWidget *made = control->make(&parent);
    QCOMPARE(made->parentWidget(), &parent);

    const QMetaObject *meta = made->metaObject();
    QCOMPARE(meta->className(), control->name);
    QCOMPARE(meta->superClass(), control->base);
    QCOMPARE(meta->methodCount() - meta->methodOffset(), control->methods);
    QCOMPARE(meta->propertyCount() - meta->propertyOffset(), control->properties);
    QCOMPARE(meta->enumeratorCount(), meta->enumeratorOffset());
    const Widget orphan(control->make(nullptr));
    QVERIFY(!orphan->parentWidget());
}

void TestClasses::madeBeforeTheRemIsChosen()
{
    QFETCH(const Support::ControlClass *, control);
    LenConverter::m_rem = 0;
    allowWarning(QStringLiteral("^QFont::setPixelSize: Pixel size <= 0"));
    QWidget parent;
    parent.resize(200, 100);
    control->make(&parent)->setGeometry(0, 0, 100, 50);
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
