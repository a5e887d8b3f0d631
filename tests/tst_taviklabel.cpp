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
    void textColours_data();
    void textColours();
    void badInput();
    void beforeTheRemIsChosen();
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

void TestTavikLabel::textColours_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QColor>("colour");
    QTest::newRow("default") << int(TavikLabel::Default) << true << QColor("#404040");
    QTest::newRow("assist") << int(TavikLabel::Assist) << true << QColor("#909090");
    QTest::newRow("disabled default") << int(TavikLabel::Default) << false << QColor("#e0e0e0");
    QTest::newRow("disabled assist") << int(TavikLabel::Assist) << false << QColor("#e0e0e0");
}

void TestTavikLabel::textColours()
{
    QFETCH(int, type);
    QFETCH(bool, enabled);
    TavikLabel label(QStringLiteral("HHH"), TavikLabel::Type(type));
    label.setFontRemSz(6); // strokes wide enough to be flat inside
    label.setEnabled(enabled);
    QFETCH(QColor, colour);
    const QImage picture = Support::picture(&label);
    int count = 0;
    for (int x = 0; x < picture.width(); ++x)
        count += picture.pixelColor(x, picture.height() / 2) == colour;
    QVERIFY2(count > 10, qPrintable(QString::number(count)));
}

void TestTavikLabel::badInput()
{
    TavikLabel label(QStringLiteral("text"));
    label.setColor(QStringLiteral("no colour"));
    label.setColor(QString());
    Support::picture(&label);
    expectWarning(QStringLiteral("^Could not parse stylesheet of object TavikLabel"));
    label.setColor(QStringLiteral("{{"));
    Support::picture(&label);
    expectWarning(QStringLiteral("Negative sizes"));
    label.setRemWidth(-1);
    QCOMPARE(label.maximumWidth(), 0);
}

void TestTavikLabel::beforeTheRemIsChosen()
{
    expectWarning(QStringLiteral("^QFont::setPixelSize: Pixel size <= 0"));
    LenConverter::m_rem = 0;
    TavikLabel label(QStringLiteral("text"));
    QVERIFY(label.styleSheet().contains(QLatin1String("font-size: 0px")));
    label.setRemSize(4, 2);
    QCOMPARE(label.maximumSize(), QSize(0, 0));
    Support::picture(&label);
}

TAVIK_TEST_MAIN(TestTavikLabel)
#include "tst_taviklabel.moc"
