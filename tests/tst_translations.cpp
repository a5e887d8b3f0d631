#include "support.h"

#include <QTranslator>

#include <Tavik/TavikColorPopup>
#include <Tavik/TavikLabel>

/// The translation files as applications load them.
class TestTranslations : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
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

void TestTranslations::popup()
{
    const struct
    {
        const char *locale;
        QStringList captions;
    } rows[] = {
        {"de_AT", {QStringLiteral("Farbauswahl"), QStringLiteral("Farben"), QStringLiteral("G")}},
        {"fr_CA",
         {QStringLiteral("Sélecteur de couleur"), QStringLiteral("Couleurs"), QStringLiteral("V")}},
        {"zh_CN", {QStringLiteral("颜色选择器"), QStringLiteral("颜色"), QStringLiteral("G")}},
    };
    for (const auto &row : rows) {
        QVERIFY2(captions().contains(QStringLiteral("Color Picker")), "No translation is loaded by itself");
        QTranslator translator;
        QVERIFY(translator.load(QLocale(QString::fromLatin1(row.locale)), QStringLiteral("tavik"),
                                QStringLiteral("_"), QStringLiteral(TAVIK_TRANSLATIONS_DIR)));
        QCoreApplication::installTranslator(&translator); // until it is deleted
        const QStringList texts = captions();
        for (const QString &caption : row.captions)
            QVERIFY2(texts.contains(caption), qPrintable(texts.join(QStringLiteral(", "))));
    }
}

TAVIK_TEST_MAIN(TestTranslations)

#include "tst_translations.moc"
