#include "support.h"

#include <Tavik/LenConverter>
#include <Tavik/Tavik>

#include <functional>
#include <memory>

/// A control parses its first sheet only once. That must not show: beside a stock widget that takes the
/// same sheet the plain way, hints, font, palette and pixels are the same.
class TestFirstSheet : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sameAsThePlainWay_data();
    void sameAsThePlainWay();
};

namespace {

using Widget = std::unique_ptr<QWidget>;
using Maker = std::function<Widget()>;

/// The stock widget that our control derives from, with our control's properties and sheet.
template <class Stock>
Widget plainTwin(const QWidget &ours)
{
    auto twin = std::make_unique<Stock>();
    for (const char *property : {"text", "placeholderText", "alignment", "orientation"})
        twin->setProperty(property, ours.property(property));
    QFont font = twin->font();
    font.setHintingPreference(ours.font().hintingPreference());
    twin->setFont(font);
    QString sheet = ours.styleSheet();
    twin->setStyleSheet(sheet.replace(QLatin1String(ours.metaObject()->className()),
                                      QLatin1String(Stock::staticMetaObject.className())));
    return twin;
}

template <class Stock, class Ours, class... Arguments>
void addRow(const char *name, Arguments... arguments)
{
    const auto ours = [=]() -> Widget { return std::make_unique<Ours>(arguments...); };
    QTest::newRow(name) << Maker(ours) << Maker([=] { return plainTwin<Stock>(*ours()); });
}

} // namespace

Q_DECLARE_METATYPE(Maker)

void TestFirstSheet::sameAsThePlainWay_data()
{
    QTest::addColumn<Maker>("ours");
    QTest::addColumn<Maker>("plain");
    const QString text = QStringLiteral("Same pixels");
    addRow<QPushButton, TavikButton>("solid button", text, TavikButton::Solid);
    addRow<QPushButton, TavikButton>("outline button", text, TavikButton::Outline);
    addRow<QPushButton, TavikButton>("link button", text, TavikButton::Link);
    addRow<QLabel, TavikLabel>("label", text, TavikLabel::Default);
    addRow<QLabel, TavikLabel>("assisting label", text, TavikLabel::Assist);
    addRow<QCheckBox, TavikCheckBox>("check box", text);
    addRow<QRadioButton, TavikRadioButton>("radio button", text);
    addRow<QLineEdit, TavikLineEdit>("line edit", text);
    addRow<QSpinBox, TavikSpinbox>("spin box");
    addRow<QSpinBox, TavikSpinbox>("spin box without buttons", 0, 99, 1, nullptr, true);
    addRow<QDoubleSpinBox, TavikDoubleSpinbox>("double spin box");
    addRow<QSlider, TavikSlider>("slider");
}

void TestFirstSheet::sameAsThePlainWay()
{
    QFETCH(Maker, ours);
    QFETCH(Maker, plain);
    for (int rem : Support::rems) {
        LenConverter::m_rem = rem;
        const Widget control = ours();
        const Widget twin = plain();
        for (QWidget *widget : {control.get(), twin.get()}) {
            widget->show();
            if (QWidget *focused = QApplication::focusWidget())
                focused->clearFocus(); // only one of the two could have it
            widget->adjustSize();
        }
        QCOMPARE(control->sizeHint(), twin->sizeHint());
        QCOMPARE(control->minimumSizeHint(), twin->minimumSizeHint());
        QCOMPARE(control->font(), twin->font());
        QCOMPARE(control->palette(), twin->palette());
        QCOMPARE(Support::picture(control.get()), Support::picture(twin.get()));
    }
}

TAVIK_TEST_MAIN(TestFirstSheet)
#include "tst_firstsheet.moc"
