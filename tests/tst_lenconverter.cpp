#include "support.h"

#include <Tavik/LenConverter>
#include <Tavik/TypographyTool>

#include <QScreen>

#include <climits>
#include <cmath>

class TestLenConverter : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsAtZero();
    void round();
    void convertsAtEachRem();
    void textForms();
    void pixelsThereAndBack();
    void screenAndFont();
};

// What m_rem is before any test function and any widget.
static const int remAtStart = LenConverter::m_rem;

void TestLenConverter::startsAtZero()
{
    QCOMPARE(remAtStart, 0);
}

void TestLenConverter::round()
{
    const std::pair<double, int> rows[] = {
        {2.5, 3},          {2.49, 2},           {std::nextafter(0.5, 0.0), 0},
        {-1.5, -1},        {-1.9, -1},          {-0.7, 0}, // what is negative is cut
        {std::nan(""), 0}, {1e300, INT_MAX},    {2147483647.5, INT_MAX},
        {-3e9, INT_MIN},   {INFINITY, INT_MAX}, {-INFINITY, INT_MIN},
    };
    for (const auto &[value, expected] : rows)
        QCOMPARE(LenConverter::round(value), expected);
}

void TestLenConverter::convertsAtEachRem()
{
    const struct
    {
        int rem;
        int fontPx; // 1.167 rem
        int design24;
        QSize design12x7;
        int minusQuarter; // -0.25 rem
    } rows[] = {
        {10, 12, 20, {10, 6}, -2},  {12, 14, 24, {12, 7}, -3},  {18, 21, 36, {18, 11}, -4},
        {24, 28, 48, {24, 14}, -6}, {30, 35, 60, {30, 18}, -7},
    };
    for (const auto &row : rows) {
        LenConverter::m_rem = row.rem;
        QCOMPARE(LenConverter::remToPx(1.167), row.fontPx);
        QCOMPARE(TypographyTool::defualtFontSz(), QString::number(row.fontPx));
        QCOMPARE(TypographyTool::assistFontSz(), QString::number(row.rem));
        QCOMPARE(LenConverter::iniRemToPx(24), row.design24);
        QCOMPARE(LenConverter::iniRemToPxSz(12, 7), row.design12x7);
        QCOMPARE(LenConverter::remToPx(-0.25), row.minusQuarter);
    }
    QCOMPARE(LenConverter::iniRemToPx(49), 122); // divided first: 122.49999999999999
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

void TestLenConverter::screenAndFont()
{
    const QSize available = QGuiApplication::primaryScreen()->availableSize();
    QCOMPARE(QSize(LenConverter::deviceWidth(), LenConverter::deviceHeight()), available);
    QCOMPARE(LenConverter::scale(), available.width() / 1920.0);
    QWidget widget;
    widget.setFont(QFont(QString(), -1, -1, true)); // italic
    TypographyTool::setFontHint(&widget);
    QVERIFY(widget.font().italic());
    TypographyTool::setFontHint(nullptr); // does nothing
}

TAVIK_TEST_MAIN(TestLenConverter)
#include "tst_lenconverter.moc"
