#include "support.h"

#include <Tavik/TavikLineEdit>

#include <QValidator>

class TestTavikLineEdit : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void constructors();
    void typing_data();
    void typing();
    void rewriteIsSilentAndFirst();
    void rewriteInACommaLocale();
    void setContent_data();
    void setContent();
    void intRange();
};

namespace {

using Type = TavikLineEdit::Type;

} // namespace

Q_DECLARE_METATYPE(TavikLineEdit::Type)

void TestTavikLineEdit::constructors()
{
    const TavikLineEdit typeFirst(QStringLiteral("hint"), TavikLineEdit::Integer, Qt::AlignCenter);
    const TavikLineEdit alignmentFirst(QStringLiteral("hint"), Qt::AlignCenter, TavikLineEdit::Integer);
    for (const TavikLineEdit *edit : {&typeFirst, &alignmentFirst}) {
        QCOMPARE(edit->alignment(), Qt::AlignCenter);
        QVERIFY(edit->validator() && edit->placeholderText() == QLatin1String("hint"));
    }
    const TavikLineEdit outside(QString(), Type(17));
    QVERIFY(!outside.validator() && outside.inputMask().isEmpty());
}

void TestTavikLineEdit::typing_data()
{
    QTest::addColumn<Type>("type");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("finished");
    const auto add = [](const char *name, Type type, const char *typed, const char *text,
                        int finished = 1) {
        QTest::newRow(name) << type << QString::fromLatin1(typed) << QString::fromLatin1(text) << finished;
    };
    add("text", TavikLineEdit::Text, "a 1.5", "a 1.5");
    add("integer refuses letters", TavikLineEdit::Integer, "-1a234567", "-1234567");
    add("empty integer is no value", TavikLineEdit::Integer, "", "", 0);
    add("signed digits", TavikLineEdit::SignedDigits, "-0-12.3", "-0123");
    add("a lone minus is enough", TavikLineEdit::SignedDigits, "-", "-");
    add("one decimal takes no second", TavikLineEdit::OneDecimal, "1.25", "1.2");
    add("no exponents", TavikLineEdit::OneDecimal, "1e3", "13.0");
    add("two decimals", TavikLineEdit::TwoDecimals, "1.5", "1.50");
    add("beyond the top", TavikLineEdit::TwoDecimals, "99999", "9999.00");
    add("beyond the bottom", TavikLineEdit::TwoDecimals, "-99999", "-9999.00");
    add("hexadecimal digits", TavikLineEdit::HexDigits, "fxA0g1234", "fA0123");
    add("none of six is required", TavikLineEdit::HexDigits, "7", "7");
}

void TestTavikLineEdit::typing()
{
    QFETCH(Type, type);
    QFETCH(QString, typed);
    TavikLineEdit edit(QString(), type);
    edit.show();
    QSignalSpy finished(&edit, &QLineEdit::editingFinished);
    QTest::keyClicks(&edit, typed);
    QTest::keyClick(&edit, Qt::Key_Return);
    QTEST(edit.text(), "text");
    QTEST(int(finished.count()), "finished");
}

void TestTavikLineEdit::rewriteIsSilentAndFirst()
{
    TavikLineEdit edit(QString(), TavikLineEdit::TwoDecimals);
    edit.show();
    QString seen;
    connect(&edit, &QLineEdit::editingFinished, this, [&] { seen = edit.text(); });
    QTest::keyClicks(&edit, QStringLiteral("1.5"));
    const QSignalSpy changed(&edit, &QLineEdit::textChanged);
    QTest::keyClick(&edit, Qt::Key_Return);
    QCOMPARE(seen, QStringLiteral("1.50"));
    QCOMPARE(changed.count(), 0);
    QVERIFY(!edit.signalsBlocked());
}

void TestTavikLineEdit::rewriteInACommaLocale()
{
    QLocale::setDefault(QLocale(QLocale::German));
    TavikLineEdit edit(QString(), TavikLineEdit::OneDecimal);
    edit.show();
    QTest::keyClicks(&edit, QStringLiteral("1,5"));
    QTest::keyClick(&edit, Qt::Key_Return);
    QLocale::setDefault(QLocale::c());
    QCOMPARE(edit.text(), QStringLiteral("0.0"));

    // What the class's document advises.
    edit.findChild<QDoubleValidator *>()->setLocale(QLocale::c());
    edit.clear();
    QTest::keyClicks(&edit, QStringLiteral("1.5"));
    QTest::keyClick(&edit, Qt::Key_Return);
    QCOMPARE(edit.text(), QStringLiteral("1.5"));
}

void TestTavikLineEdit::setContent_data()
{
    QTest::addColumn<Type>("type");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    const auto add = [](const char *name, Type type, const QVariant &value, const char *text) {
        QTest::newRow(name) << type << value << QString::fromLatin1(text);
    };
    const QString half = QStringLiteral("2.5");
    const QString word = QStringLiteral("word");
    add("integer, text", TavikLineEdit::Integer, QStringLiteral("0042"), "42");
    add("integer, fraction in text", TavikLineEdit::Integer, half, "0");
    add("integer, fraction", TavikLineEdit::Integer, 2.5, "2.5");
    add("two decimals, text", TavikLineEdit::TwoDecimals, QStringLiteral("1234567.891"), "1234567.89");
    add("one decimal, word", TavikLineEdit::OneDecimal, word, "0.0");
    add("one decimal, fraction", TavikLineEdit::OneDecimal, 1234567.89, "1234567.9");
    add("two decimals, number", TavikLineEdit::TwoDecimals, 3, "3.00");
    add("text, big number", TavikLineEdit::Text, 1234567.0, "1.23457e+06");
    add("signed digits are not checked", TavikLineEdit::SignedDigits, word, "word");
    add("the mask filters", TavikLineEdit::HexDigits, QStringLiteral("12xyzf"), "12f");
}

void TestTavikLineEdit::setContent()
{
    QFETCH(Type, type);
    QFETCH(QVariant, value);
    TavikLineEdit edit(QString(), type);
    const QSignalSpy changed(&edit, &QLineEdit::textChanged);
    if (value.userType() == QMetaType::Int)
        edit.setContent(value.toInt());
    else if (value.userType() == QMetaType::Double)
        edit.setContent(value.toDouble());
    else
        edit.setContent(value.toString());
    QTEST(edit.text(), "text");
    QCOMPARE(changed.count(), 1);
}

void TestTavikLineEdit::intRange()
{
    TavikLineEdit edit(QString(), TavikLineEdit::Integer);
    edit.setContent(300);
    const auto *validator = qobject_cast<const QIntValidator *>(edit.validator());
    edit.setIntRange(-5, 255);
    QCOMPARE(edit.text(), QStringLiteral("300"));
    QCOMPARE(validator->bottom(), -5);

    // Another validator of the application's is left alone.
    QIntValidator own(1, 2, nullptr);
    edit.setValidator(&own);
    edit.setIntRange(3, 4);
    QCOMPARE(validator->top(), 4);
    QCOMPARE(own.top(), 2);
}

TAVIK_TEST_MAIN(TestTavikLineEdit)
#include "tst_taviklineedit.moc"
