#include "support.h"

#include <Tavik/LenConverter>
#include <Tavik/TypographyTool>

#include <QScreen>

#include <cmath>
#include <limits>

class TestLenConverter : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsAtZero();
    void round_data();
    void round();
    void convertsAtEachRem_data();
    void convertsAtEachRem();
    void textForms();
    void pixelsThereAndBack();
    void screenFacts();
    void fontHint();
};

// What m_rem is before any test function and any widget.
static const int remAtStart = LenConverter::m_rem;

void TestLenConverter::startsAtZero()
{
    QCOMPARE(remAtStart, 0);
    LenConverter::m_rem = 0;
    QCOMPARE(LenConverter::remToPx(40), 0);
    QCOMPARE(LenConverter::iniRemToStrPx(40), QStringLiteral("0"));
}

void TestLenConverter::round_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("expected");
    const double infinity = std::numeric_limits<double>::infinity();
    QTest::newRow("half up") << 2.5 << 3;
    QTest::newRow("below half") << 2.49 << 2;
    QTest::newRow("just below half") << std::nextafter(0.5, 0.0) << 0;
    QTest::newRow("negative half is cut") << -1.5 << -1;
    QTest::newRow("negative is cut") << -1.9 << -1;
    QTest::newRow("negative fraction") << -0.7 << 0;
    QTest::newRow("not a number") << std::nan("") << 0;
    QTest::newRow("too big") << 1e300 << std::numeric_limits<int>::max();
    QTest::newRow("one past the top") << 2147483647.5 << std::numeric_limits<int>::max();
    QTest::newRow("too small") << -3e9 << std::numeric_limits<int>::min();
    QTest::newRow("infinite") << infinity << std::numeric_limits<int>::max();
    QTest::newRow("negative infinite") << -infinity << std::numeric_limits<int>::min();
}

void TestLenConverter::round()
{
    QFETCH(double, value);
    QTEST(LenConverter::round(value), "expected");
}

void TestLenConverter::convertsAtEachRem_data()
{
    QTest::addColumn<int>("rem");
    QTest::addColumn<int>("fontPx");       // 1.167 rem
    QTest::addColumn<int>("design24");     // 24 design pixels
    QTest::addColumn<QSize>("design12x7"); // 12 by 7 design pixels
    QTest::addColumn<int>("minusQuarter"); // -0.25 rem
    QTest::newRow("10") << 10 << 12 << 20 << QSize(10, 6) << -2;
    QTest::newRow("12") << 12 << 14 << 24 << QSize(12, 7) << -3;
    QTest::newRow("18") << 18 << 21 << 36 << QSize(18, 11) << -4;
    QTest::newRow("24") << 24 << 28 << 48 << QSize(24, 14) << -6;
    QTest::newRow("30") << 30 << 35 << 60 << QSize(30, 18) << -7;
}

void TestLenConverter::convertsAtEachRem()
{
    QFETCH(int, rem);
    QFETCH(int, fontPx);
    LenConverter::m_rem = rem;
    QCOMPARE(LenConverter::rem(), rem);
    QCOMPARE(LenConverter::remToPx(1.167), fontPx);
    QCOMPARE(TypographyTool::defualtFontSz(), QString::number(fontPx));
    QCOMPARE(TypographyTool::assistFontSz(), QString::number(rem));
    QTEST(LenConverter::iniRemToPx(24), "design24");
    QTEST(LenConverter::iniRemToPxSz(12, 7), "design12x7");
    QTEST(LenConverter::remToPx(-0.25), "minusQuarter");
    QCOMPARE(LenConverter::remToPx(0), 0);
}

void TestLenConverter::textForms()
{
    QCOMPARE(LenConverter::remToStrPx(1.167), QStringLiteral("14"));
    QCOMPARE(LenConverter::strRemToStrPx(QStringLiteral("1.167")), QStringLiteral("14"));
    QCOMPARE(LenConverter::strRemToStrPx(QStringLiteral("wide")), QStringLiteral("0"));
    QCOMPARE(LenConverter::iniRemToStrPx(17.4), QStringLiteral("17"));
    QCOMPARE(LenConverter::pxToStrRem(14), QStringLiteral("1.16667"));
    QCOMPARE(LenConverter::pxToStrRem(120000000), QStringLiteral("1e+07"));
    QCOMPARE(LenConverter::strPxToStrRem(QStringLiteral("18")), QStringLiteral("1.5"));
    QCOMPARE(LenConverter::strPxToStrRem(QStringLiteral("12.5")), QStringLiteral("0"));
}

void TestLenConverter::pixelsThereAndBack()
{
    for (int rem : Support::rems) {
        LenConverter::m_rem = rem;
        for (int px = 0; px < 5000; ++px)
            QCOMPARE(LenConverter::remToPx(LenConverter::pxToRem(px)), px);
    }
}

void TestLenConverter::screenFacts()
{
    const QSize available = QGuiApplication::primaryScreen()->availableSize();
    QCOMPARE(LenConverter::deviceWidth(), available.width());
    QCOMPARE(LenConverter::deviceHeight(), available.height());
    QCOMPARE(LenConverter::designReference(), 1920);
    QCOMPARE(LenConverter::scale(), available.width() / 1920.0);
}

void TestLenConverter::fontHint()
{
    QWidget widget;
    QFont font = widget.font();
    font.setItalic(true);
    widget.setFont(font);
    TypographyTool::setFontHint(&widget);
    QCOMPARE(widget.font().hintingPreference(), QFont::PreferVerticalHinting);
    QVERIFY(widget.font().italic());
    TypographyTool::setFontHint(nullptr);
}

TAVIK_TEST_MAIN(TestLenConverter)
#include "tst_lenconverter.moc"
