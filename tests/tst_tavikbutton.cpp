#include "support.h"

#include <Tavik/IconTool>
#include <Tavik/LenConverter>
#include <Tavik/TavikButton>

#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>

#include <memory>

class TestTavikButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sheets();
    void styleSettersWait();
    void typeOnALiveButton();
    void iconSizes();
    void pictureAndCaption();
    void pictureAndCaptionWithout();
    void sizes();
    void pictureButton_data();
    void pictureButton();
    void pictureButtonWithoutIcon();
    void badInput();
};

namespace {

QIcon icon(const char *path = ":/Color/images/color")
{
    return IconTool::constructIcon(QString::fromLatin1(path), QSize(16, 16));
}

QString expectedSheet(const char *name)
{
    return Support::expectedSheet(QStringLiteral("button-") + QString::fromLatin1(name));
}

} // namespace

void TestTavikButton::sheets()
{
    const char *const names[] = {"solid-12", "outline-12", "toggle-12", "link-12", "flat-12"};
    for (int type = -1; type <= 5; ++type) {
        const bool isOutside = type < TavikButton::Solid || type > TavikButton::Flat;
        const TavikButton button(TavikButton::Type(type), nullptr);
        QCOMPARE(button.styleSheet(), expectedSheet(names[isOutside ? 0 : type]));
        QCOMPARE(button.font().hintingPreference(), QFont::PreferVerticalHinting);
        QCOMPARE(button.isCheckable(), type == TavikButton::Toggle);
    }
    QWidget parent;
    const TavikButton button(tr("OK"), &parent);
    QCOMPARE(button.text(), QStringLiteral("OK"));
    QCOMPARE(button.styleSheet(), expectedSheet("solid-12"));
}

void TestTavikButton::styleSettersWait()
{
    const struct
    {
        void (TavikButton::*set)(const QString &);
        const char *value;
    } rows[] = {
        {&TavikButton::setBgColor, "#000001"},
        {&TavikButton::setHoverBgColor, "#000002"},
        {&TavikButton::setPressBgColor, "#000003"},
        {&TavikButton::setCheckedBgColor, "#000004"},
        {&TavikButton::setColor, "#000005"},
        {&TavikButton::setHoverColor, "#000006"},
        {&TavikButton::setCheckedColor, "#000007"},
        {&TavikButton::setBorderColor, "#000008"},
        {&TavikButton::setHoverBorderColor, "#000009"},
        {&TavikButton::setPressBorderColor, "#000010"},
        {&TavikButton::setCheckedBorderColor, "#000011"},
        {&TavikButton::setBorderWidth, "2"},
        {&TavikButton::setBorderRadius, "7"},
        {&TavikButton::setMargin, "3"},
    };
    TavikButton button;
    for (const auto &row : rows)
        (button.*row.set)(QString::fromLatin1(row.value));
    QCOMPARE(button.styleSheet(), expectedSheet("solid-12"));
    button.setFontRemSz(2.0); // restyles, and so shows what was stored before
    QCOMPARE(button.styleSheet(), expectedSheet("every-property"));
}

void TestTavikButton::typeOnALiveButton()
{
    TavikButton button(TavikButton::Toggle);
    button.initStyleProperties(TavikButton::Solid);
    QCOMPARE(button.styleSheet(), expectedSheet("toggle-12"));
    // What Solid leaves alone keeps the value of the type before; no type ends being checkable.
    QCOMPARE(button.borderRadius(), QStringLiteral("0"));
    QVERIFY(button.isCheckable());
}

void TestTavikButton::iconSizes()
{
    LenConverter::m_rem = 18;
    const TavikButton both(icon(), QSizeF(1.5, 2), tr("Colour"), TavikButton::Outline);
    QCOMPARE(both.iconSize(), QSize(27, 36));
    QCOMPARE(both.text(), QStringLiteral("Colour"));
    QVERIFY(!both.icon().isNull());
    QCOMPARE(TavikButton(icon(), QSizeF(16, 16), TavikButton::Flat).iconSize(), QSize(288, 288));
    QCOMPARE(TavikButton(icon(), QSize(16, 16), TavikButton::Flat).iconSize(), QSize(16, 16));
}

void TestTavikButton::pictureAndCaption()
{
    LenConverter::m_rem = 18;
    auto button = std::make_unique<TavikButton>(QStringLiteral(":/Color/images/color.svg"), QSize(24, 12),
                                                new QLabel(tr("caption")));
    QVERIFY(button->styleSheet().isEmpty());
    QCOMPARE(button->font().hintingPreference(), QFont::PreferDefaultHinting);
    QCOMPARE(static_cast<QLayoutItem *>(button->layout())->alignment(), Qt::AlignCenter);
    QWidget *picture = button->layout()->itemAt(0)->widget();
    QCOMPARE(picture->size(), QSize(36, 18));
    const QImage shown = Support::picture(picture);
    QCOMPARE(shown.pixelColor(18, 9), QColor("#5C605F"));
    QVERIFY(shown.pixelColor(18, 0) != QColor("#5C605F")); // scaled, with its border
    const QPointer<QWidget> caption = button->layout()->itemAt(1)->widget();
    button->updateStyleSheet();
    QVERIFY(button->styleSheet().startsWith(QLatin1String("TavikButton {color: #ffffff;font-size: 21px;")));
    button.reset();
    QVERIFY(!caption);
}

void TestTavikButton::pictureAndCaptionWithout()
{
    expectWarning(QStringLiteral("Cannot add a null widget"));
    const TavikButton button(QStringLiteral(":/nowhere.png"), QSize(24, 24), nullptr, nullptr);
    QCOMPARE(button.layout()->count(), 1);
    QCOMPARE(button.layout()->itemAt(0)->widget()->size(), QSize(24, 24));
}

void TestTavikButton::sizes()
{
    TavikButton button;
    button.setRemSize(8, 2.5);
    QCOMPARE(button.size(), QSize(96, 30));
    button.setRemSize(QSizeF(4, 3));
    QCOMPARE(button.minimumSize(), QSize(48, 36));
    QCOMPARE(button.maximumSize(), QSize(48, 36));
    button.setRemWidth(5);
    button.setRemHeight(6);
    QCOMPARE(button.size(), QSize(60, 72));
}

void TestTavikButton::pictureButton_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<QColor>("colour");
    QTest::newRow("rest") << QString() << QColor(Qt::green);
    QTest::newRow("hover") << QStringLiteral("hover") << QColor(Qt::red);
    QTest::newRow("pressed looks like rest") << QStringLiteral("pressed") << QColor(Qt::green);
    QTest::newRow("disabled looks like rest") << QStringLiteral("disabled") << QColor(Qt::green);
    QTest::newRow("checked wins over hover") << QStringLiteral("checked hover") << QColor(Qt::blue);
}

void TestTavikButton::pictureButton()
{
    QFETCH(QString, state);
    QIcon icon;
    QPixmap pixmap(60, 30);
    pixmap.fill(Qt::green);
    icon.addPixmap(pixmap, QIcon::Normal, QIcon::On);
    pixmap.fill(Qt::red);
    icon.addPixmap(pixmap, QIcon::Active, QIcon::On);
    pixmap.fill(Qt::blue);
    icon.addPixmap(pixmap, QIcon::Selected, QIcon::On);
    TavikButton button(icon, QSize(4, 4), TavikButton::Solid);
    button.setText(tr("never drawn"));
    button.setIsPaintOverrided(true);
    button.setFixedSize(60, 30);
    button.setCheckable(true);
    button.setChecked(state.contains(QLatin1String("checked")));
    button.setEnabled(!state.contains(QLatin1String("disabled")));
    button.show();
    if (state.contains(QLatin1String("hover")))
        Support::hover(&button);
    button.setDown(state.contains(QLatin1String("pressed")));

    // The picture fills the whole button, whatever the icon's size is.
    QFETCH(QColor, colour);
    pixmap.fill(colour);
    QCOMPARE(Support::picture(&button), pixmap.toImage().convertToFormat(QImage::Format_ARGB32));
}

void TestTavikButton::pictureButtonWithoutIcon()
{
    QWidget ground;
    ground.setPalette(QPalette(Qt::black, Qt::magenta));
    ground.setAutoFillBackground(true);
    TavikButton button(tr("never drawn"), &ground);
    button.setIsPaintOverrided(true);
    button.setGeometry(0, 0, 60, 30);
    ground.resize(60, 30);
    QImage empty(60, 30, QImage::Format_ARGB32);
    empty.fill(Qt::magenta);
    QCOMPARE(Support::picture(&ground), empty);
}

void TestTavikButton::badInput()
{
    expectWarning(QStringLiteral("^Cannot open file '/nowhere")); // of the SVG plug-in
    TavikButton button(icon("/nowhere"), QSizeF(-1, 1e12), TavikButton::Flat);
    button.setBgColor(QStringLiteral("no colour"));
    button.setBorderWidth(QStringLiteral("wide"));
    button.setFontPxSz(14);
    Support::picture(&button);
    expectWarning(QStringLiteral("^Could not parse stylesheet of object TavikButton"));
    button.setMargin(QStringLiteral("{{"));
    button.updateStyleSheet();
    Support::picture(&button);
    button.setIsPaintOverrided(true);
    Support::picture(&button);
}

TAVIK_TEST_MAIN(TestTavikButton)
#include "tst_tavikbutton.moc"
