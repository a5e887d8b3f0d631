#include "classes.h"
#include "support.h"

#include <QScrollBar>

#include <memory>

/// What holds for every control: how it can be made, and what its style sheets are.
class TestClasses : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void madeFromAParent();
    void madeBeforeTheRemIsChosen();
    void sheets();
    void sheetsOfChangedControls();
};

namespace {

void verifySheet(const char *file, const QWidget &control)
{
    QVERIFY2(control.styleSheet() == Support::expectedSheet(QString::fromLatin1(file)), file);
}

/// Changes what a box stores in rem; it is converted when the sheet is built.
template <class Box>
void verifyChangedSheet(const char *file, Box &&box)
{
    LenConverter::m_rem = 12;
    const QString before = box.styleSheet();
    box.setFontRemSz(2.0);
    box.setIndicatorSz(1.5);
    LenConverter::m_rem = 10;
    QCOMPARE(box.styleSheet(), before);
    box.updateStyleSheet();
    verifySheet(file, box);
}

} // namespace

void TestClasses::madeFromAParent()
{
    for (const Support::ControlClass &each : Support::controlClasses()) {
        QWidget parent;
        const QWidget *control = each.make(&parent);
        QCOMPARE(control->parentWidget(), &parent);
        QCOMPARE(control->metaObject()->className(), each.name);
        const std::unique_ptr<QWidget> orphan(each.make(nullptr));
        QVERIFY(!orphan->parentWidget());
    }
}

void TestClasses::madeBeforeTheRemIsChosen()
{
    LenConverter::m_rem = 0;
    allowWarning(QStringLiteral("^QFont::setPixelSize: Pixel size <= 0"));
    for (const Support::ControlClass &each : Support::controlClasses()) {
        QWidget parent;
        parent.resize(200, 100);
        each.make(&parent)->setGeometry(0, 0, 100, 50);
        parent.show();
        Support::picture(&parent);
    }
}

void TestClasses::sheets()
{
    verifySheet("checkbox-12", TavikCheckBox());
    verifySheet("radiobutton-12", TavikRadioButton());
    for (int type = TavikLineEdit::Text; type <= TavikLineEdit::HexDigits; ++type)
        verifySheet("lineedit-12", TavikLineEdit(QString(), TavikLineEdit::Type(type)));
    verifySheet("spinbox-12", TavikSpinbox());
    verifySheet("spinbox-hidden-12", TavikSpinbox(0, 9, 1, nullptr, true));
    verifySheet("doublespinbox-12", TavikDoubleSpinbox());
    verifySheet("combobox-12", TavikComboBox(TavikComboBox::Editable));
    verifySheet("combobox-12", TavikFontFamilyComboBox());
    const TavikComboBox combo;
    verifySheet("combobox-12", combo);
    verifySheet("combobox-view-12", *combo.view());
    verifySheet("scrollbar-without-right", *combo.view()->verticalScrollBar());
    verifySheet("slider", TavikSlider(100, 20));
    verifySheet("slider", TavikSlider());
    verifySheet("container",
                TavikContainer(Vertical, QStringLiteral("#ececec"), QStringLiteral("1"),
                               QStringLiteral("#d3d3d3"), QStringLiteral("2"), QStringLiteral("0")));
    verifySheet("container-transparent", TavikContainer(Horizontal));
    const TavikExpandable panel;
    const QList<TavikContainer *> boxes = panel.findChildren<TavikContainer *>();
    verifySheet("container", *boxes.at(0));
    verifySheet("expandable-content", *boxes.at(1));
    verifySheet("expandable-inner", *boxes.at(2));
    verifySheet("scrollarea",
                TavikScrollArea(QStringLiteral("2"), QStringLiteral("#010203"), QStringLiteral("#fafafa")));
    const TavikScrollArea area;
    verifySheet("scrollarea-plain", area);
    verifySheet("scrollbar-without-right", *area.verticalScrollBar());
    const TavikImageList list;
    verifySheet("imagelist", list);
    verifySheet("scrollbar-all-sides", *list.verticalScrollBar());
    verifySheet("colorbutton", TavikColorButton());
    QCOMPARE(TavikDial().styleSheet() + TavikSeperateLine(100).styleSheet(), QString());
}

void TestClasses::sheetsOfChangedControls()
{
    TavikCheckBox coloured;
    coloured.setFontColor(QStringLiteral("#123456"));
    verifyChangedSheet("checkbox-changed-10", coloured);
    verifyChangedSheet("radiobutton-changed-10", TavikRadioButton());

    LenConverter::m_rem = 18;
    TavikComboBox combo;
    combo.setFontRemSz(1.5);
    const auto resized = [](const char *file) {
        return Support::expectedSheet(QString::fromLatin1(file))
            .replace(QLatin1String("font-size: 14px"), QLatin1String("font-size: 27px"));
    };
    QCOMPARE(combo.styleSheet(), resized("combobox-12"));
    QCOMPARE(
        combo.view()->styleSheet(),
        resized("combobox-view-12").replace(QLatin1String("height: 20px"), QLatin1String("height: 30px")));
    TavikLineEdit edit;
    edit.setFontRemSz(1.5);
    QCOMPARE(edit.styleSheet(), resized("lineedit-12"));
    edit.setFontRemSz(2);
    edit.setFontPxSz(27);
    QCOMPARE(edit.styleSheet(), resized("lineedit-12"));
    TavikDoubleSpinbox fraction;
    fraction.setFontRemSz(1.5);
    QCOMPARE(fraction.styleSheet(), resized("doublespinbox-12"));
    TavikSpinbox whole(0, 9, 1, nullptr, true, 1.5);
    QCOMPARE(whole.styleSheet(), resized("spinbox-hidden-12"));
    whole.setFontRemSz(1.5);
    QCOMPARE(whole.styleSheet(), resized("spinbox-12"));
    whole.updateStyleSheetHideStepBut();
    QCOMPARE(whole.styleSheet(), resized("spinbox-hidden-12"));
}

TAVIK_TEST_MAIN(TestClasses)
#include "tst_classes.moc"
