#include "support.h"

#include <Tavik/LenConverter>
#include <Tavik/TavikLabel>

class TestTavikLabel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sheet_data();
    void sheet();
    void constructors();
    void restylesAtOnce();
    void typeWaitsForTheSheet();
    void sizes();
};

void TestTavikLabel::sheet_data()
{
    QTest::addColumn<int>("rem");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("file");
    QTest::newRow("default") << 12 << 0 << QStringLiteral("label-default-12");
    QTest::newRow("assist") << 30 << 1 << QStringLiteral("label-assist-30");
    QTest::newRow("outside") << 12 << 7 << QStringLiteral("label-default-12");
    QTest::newRow("below") << 12 << -1 << QStringLiteral("label-default-12");
}

void TestTavikLabel::sheet()
{
    QFETCH(int, rem);
    QFETCH(int, type);
    QFETCH(QString, file);
    LenConverter::m_rem = rem;
    const TavikLabel label(QStringLiteral("text"), TavikLabel::Type(type), nullptr);
    QCOMPARE(label.styleSheet(), Support::expectedSheet(file));
    QCOMPARE(label.font().hintingPreference(), QFont::PreferVerticalHinting);
}

void TestTavikLabel::constructors()
{
    QWidget parent;
    const TavikLabel plain(&parent);
    QCOMPARE(plain.parentWidget(), &parent);
    QVERIFY(plain.text().isEmpty());
    const TavikLabel text(tr("text"), &parent);
    QCOMPARE(text.parentWidget(), &parent);
    QCOMPARE(text.text(), QStringLiteral("text"));
    QCOMPARE(text.color(), QStringLiteral("#404040"));
    const TavikLabel typed(tr("text"), TavikLabel::Assist, &parent);
    QCOMPARE(typed.parentWidget(), &parent);
    QCOMPARE(typed.color(), QStringLiteral("#909090"));
}

void TestTavikLabel::restylesAtOnce()
{
    TavikLabel label(QStringLiteral("text"));
    label.setFontRemSz(1.0);
    QVERIFY(label.styleSheet().contains(QLatin1String(";font-size: 12px;")));
    label.setColor(QStringLiteral("#123456"));
    QCOMPARE(label.color(), QStringLiteral("#123456"));
    QVERIFY(label.styleSheet().startsWith(QLatin1String("TavikLabel{color: #123456;font-size: 12px;")));
}

void TestTavikLabel::typeWaitsForTheSheet()
{
    TavikLabel label(QStringLiteral("text"));
    const QString before = label.styleSheet();
    label.initStyleProperties(TavikLabel::Assist);
    QCOMPARE(label.styleSheet(), before);
    label.updateStyleSheet();
    QVERIFY(label.styleSheet().startsWith(QLatin1String("TavikLabel{color: #909090;font-size: 12px;")));
}

void TestTavikLabel::sizes()
{
    TavikLabel label;
    label.setRemSize(10.04, 2.5);
    QCOMPARE(label.minimumSize(), QSize(120, 30));
    QCOMPARE(label.maximumSize(), QSize(120, 30));
    label.setRemWidth(5);
    label.setRemHeight(1.167);
    QCOMPARE(label.size(), QSize(60, 14));
}

TAVIK_TEST_MAIN(TestTavikLabel)
#include "tst_taviklabel.moc"
