#include "support.h"

#include <Tavik/Tavik>

#include <cmath>

/// The table of contrasts in the guide: its figures, and that no text colour of ours is missing from it.
class TestContrast : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void figures();
    void nothingIsMissing_data();
    void nothingIsMissing();
};

namespace {

struct Row
{
    QString control;
    QColor text;
    QColor ground;
    QString ratio;
    QString verdict;
};

QVector<Row> table()
{
    QFile page(QStringLiteral(ACCESSIBILITY_PAGE));
    if (!page.open(QIODevice::ReadOnly))
        qFatal("The accessibility page can't be read");
    static const QRegularExpression line(
        QStringLiteral(R"(^\| ([^|]+) \| [^|]+ \| `(#\w{6})` \| `(#\w{6})` \| ([\d.]+):1 \| (\w+) \|$)"));
    QVector<Row> rows;
    for (const QString &text : QString::fromUtf8(page.readAll()).split(QLatin1Char('\n'))) {
        const auto match = line.match(text);
        if (match.hasMatch())
            rows.append({match.captured(1), QColor(match.captured(2)), QColor(match.captured(3)),
                         match.captured(4), match.captured(5)});
    }
    return rows;
}

double linear(double channel)
{
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

QString buttonSheet(TavikButton::Type type)
{
    return TavikButton(QStringLiteral("text"), type).styleSheet();
}

} // namespace

void TestContrast::figures()
{
    QCOMPARE(qRound(contrast(Qt::white, Qt::black)), 21);
    const QVector<Row> rows = table();
    QVERIFY(rows.size() > 30);
    for (const Row &row : rows) {
        const double ratio = contrast(row.text, row.ground);
        const QByteArray where = QString(row.control + row.text.name() + row.ground.name()).toUtf8();
        QVERIFY2(row.ratio == QString::number(ratio, 'f', 2), where.constData());
        QVERIFY2(row.verdict == QString::fromLatin1(ratio >= 4.5 ? "yes" : "no"), where.constData());
    }
}

void TestContrast::nothingIsMissing_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::newRow("TavikButton, Solid") << buttonSheet(TavikButton::Solid);
    QTest::newRow("TavikButton, Outline") << buttonSheet(TavikButton::Outline);
    QTest::newRow("TavikButton, Toggle") << buttonSheet(TavikButton::Toggle);
    QTest::newRow("TavikButton, Link") << buttonSheet(TavikButton::Link);
    QTest::newRow("TavikLabel, Default") << TavikLabel().styleSheet();
    QTest::newRow("TavikLabel, Assist")
        << TavikLabel(QString(), TavikLabel::Assist, static_cast<QWidget *>(nullptr)).styleSheet();
    QTest::newRow("TavikCheckBox") << TavikCheckBox().styleSheet();
    QTest::newRow("TavikRadioButton") << TavikRadioButton().styleSheet();
    QTest::newRow("TavikLineEdit") << TavikLineEdit().styleSheet();
    QTest::newRow("TavikSpinbox") << TavikSpinbox().styleSheet();
    QTest::newRow("TavikComboBox") << TavikComboBox().styleSheet();
    QTest::newRow("TavikComboBox, list") << TavikComboBox().view()->styleSheet();
}

void TestContrast::nothingIsMissing()
{
    QFETCH(QString, sheet);
    QSet<QString> shown; // as text, and as text on a ground
    for (const Row &row : table()) {
        if (row.control == QLatin1String(QTest::currentDataTag()))
            shown << row.text.name() << row.text.name() + row.ground.name();
    }
    static const QRegularExpression rule(
        QStringLiteral(R"((?<![-\w])color: (#\w{6});(?:[^}]*?(?<![-\w])background-color: (#\w{6});)?)"));
    int seen = 0;
    for (auto matches = rule.globalMatch(sheet); matches.hasNext(); ++seen) {
        const auto match = matches.next();
        QVERIFY2(shown.contains(match.captured(1) + match.captured(2)), qPrintable(match.captured()));
    }
    QVERIFY(seen > 0);
}

TAVIK_TEST_MAIN(TestContrast)
#include "tst_contrast.moc"
