#include "support.h"

#include <Tavik/LenConverter>
#include <Tavik/Tavik>

#include <memory>

/// A control parses its first sheet only once. That must not show: beside a stock widget that takes the
/// same sheet the plain way, hints, font, palette and pixels are the same.
class TestFirstSheet : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sameAsThePlainWay();
};

namespace {

using Widget = std::unique_ptr<QWidget>;

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
void verifySame(Arguments... arguments)
{
    for (const int rem : Support::rems) {
        LenConverter::m_rem = rem;
        Ours control(arguments...);
        const Widget twin = plainTwin<Stock>(Ours(arguments...));
        for (QWidget *widget : {static_cast<QWidget *>(&control), twin.get()}) {
            widget->show();
            if (QWidget *focused = QApplication::focusWidget())
                focused->clearFocus(); // only one of the two could have it
            widget->adjustSize();
        }
        const char *const name = Ours::staticMetaObject.className();
        QVERIFY2(control.sizeHint() == twin->sizeHint(), name);
        QVERIFY2(control.minimumSizeHint() == twin->minimumSizeHint(), name);
        QVERIFY2(control.font() == twin->font(), name);
        QVERIFY2(control.palette() == twin->palette(), name);
        QVERIFY2(Support::picture(&control) == Support::picture(twin.get()), name);
    }
}

} // namespace

void TestFirstSheet::sameAsThePlainWay()
{
    const QString text = QStringLiteral("Same pixels");
    verifySame<QPushButton, TavikButton>(text, TavikButton::Solid);
    verifySame<QPushButton, TavikButton>(text, TavikButton::Link);
    verifySame<QLabel, TavikLabel>(text, TavikLabel::Assist);
    verifySame<QCheckBox, TavikCheckBox>(text);
    verifySame<QRadioButton, TavikRadioButton>(text);
    verifySame<QLineEdit, TavikLineEdit>(text);
    verifySame<QSpinBox, TavikSpinbox>();
    verifySame<QSpinBox, TavikSpinbox>(0, 99, 1, nullptr, true);
    verifySame<QDoubleSpinBox, TavikDoubleSpinbox>();
    verifySame<QSlider, TavikSlider>();
}

TAVIK_TEST_MAIN(TestFirstSheet)
#include "tst_firstsheet.moc"
