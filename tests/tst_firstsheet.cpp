#include "support.h"

#include <Tavik/LenConverter>
#include <Tavik/TavikButton>
#include <Tavik/TavikLabel>

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

using Maker = std::function<std::unique_ptr<QWidget>()>;

/// The stock widget that our control derives from, with our control's text and sheet.
template <class Stock, class Ours>
std::unique_ptr<QWidget> plainTwin(const Ours &ours)
{
    auto twin = std::make_unique<Stock>();
    twin->setText(ours.text());
    QFont font = twin->font();
    font.setHintingPreference(QFont::PreferVerticalHinting);
    twin->setFont(font);
    QString sheet = ours.styleSheet();
    twin->setStyleSheet(sheet.replace(QLatin1String(Ours::staticMetaObject.className()),
                                      QLatin1String(Stock::staticMetaObject.className())));
    return twin;
}

} // namespace

Q_DECLARE_METATYPE(Maker)

void TestFirstSheet::sameAsThePlainWay_data()
{
    QTest::addColumn<Maker>("ours");
    QTest::addColumn<Maker>("plain");
    const QString text = QStringLiteral("Same pixels");
    for (int type = TavikButton::Solid; type <= TavikButton::Flat; ++type) {
        QTest::addRow("button %d", type)
            << Maker([=] { return std::make_unique<TavikButton>(text, TavikButton::Type(type)); })
            << Maker([=] { return plainTwin<QPushButton>(TavikButton(text, TavikButton::Type(type))); });
    }
    for (int type = TavikLabel::Default; type <= TavikLabel::Assist; ++type) {
        QTest::addRow("label %d", type)
            << Maker([=] { return std::make_unique<TavikLabel>(text, TavikLabel::Type(type)); })
            << Maker([=] { return plainTwin<QLabel>(TavikLabel(text, TavikLabel::Type(type))); });
    }
}

void TestFirstSheet::sameAsThePlainWay()
{
    QFETCH(Maker, ours);
    QFETCH(Maker, plain);
    for (int rem : Support::rems) {
        LenConverter::m_rem = rem;
        const auto control = ours();
        const auto twin = plain();
        for (QWidget *widget : {control.get(), twin.get()}) {
            widget->show();
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
