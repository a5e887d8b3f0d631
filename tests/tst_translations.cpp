#include "support.h"

#include <QTranslator>

#include <Tavik/TavikColorPopup>
#include <Tavik/TavikLabel>

/// The translation files as applications load them.
class TestTranslations : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void popup_data();
    void popup();
};

namespace {

QStringList captions()
{
    const TavikColorPopup popup;
    QStringList texts;
    const auto labels = popup.findChildren<TavikLabel *>();
    for (const TavikLabel *label : labels)
        texts.append(label->text());
    return texts;
}

} // namespace

void TestTranslations::popup_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("palette");
    QTest::addColumn<QString>("green");
    QTest::newRow("de_AT") << QStringLiteral("Farbauswahl") << QStringLiteral("Farben")
                           << QStringLiteral("G");
    QTest::newRow("fr_CA") << QStringLiteral("Sélecteur de couleur") << QStringLiteral("Couleurs")
                           << QStringLiteral("V");
    QTest::newRow("zh_CN") << QStringLiteral("颜色选择器") << QStringLiteral("颜色") << QStringLiteral("G");
}

void TestTranslations::popup()
{
    QFETCH(QString, title);
    QFETCH(QString, palette);
    QFETCH(QString, green);
    QTranslator translator;
    QVERIFY(translator.load(QLocale(QString::fromLatin1(QTest::currentDataTag())), QStringLiteral("tavik"),
                            QStringLiteral("_"), QStringLiteral(TAVIK_TRANSLATIONS_DIR)));
    QVERIFY2(captions().contains(QStringLiteral("Color Picker")), "No translation is loaded by itself");
    QCoreApplication::installTranslator(&translator);
    const QStringList texts = captions();
    QVERIFY2(texts.contains(title) && texts.contains(palette) && texts.contains(green),
             qPrintable(texts.join(QStringLiteral(", "))));
}

TAVIK_TEST_MAIN(TestTranslations)

#include "tst_translations.moc"
