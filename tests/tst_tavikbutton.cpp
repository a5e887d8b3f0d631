#include "support.h"

#include <Tavik/IconTool>
#include <Tavik/LenConverter>
#include <Tavik/TavikButton>

#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>

class TestTavikButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sheet_data();
    void sheet();
    void styleSettersWait();
    void typeOnALiveButton();
    void constructors();
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

const char *const colorSet = ":/Color/images/color";

QIcon icon(const char *path = colorSet)
{
    return IconTool::constructIcon(QString::fromLatin1(path), QSize(16, 16));
}

} // namespace

void TestTavikButton::sheet_data()
{
    QTest::addColumn<int>("rem");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("file");
    QTest::newRow("solid") << 12 << 0 << QStringLiteral("button-solid-12");
    QTest::newRow("solid at 30") << 30 << 0 << QStringLiteral("button-solid-30");
    QTest::newRow("outline") << 12 << 1 << QStringLiteral("button-outline-12");
    QTest::newRow("toggle") << 12 << 2 << QStringLiteral("button-toggle-12");
    QTest::newRow("link") << 12 << 3 << QStringLiteral("button-link-12");
    QTest::newRow("flat") << 12 << 4 << QStringLiteral("button-flat-12");
    QTest::newRow("outside") << 12 << 5 << QStringLiteral("button-solid-12");
    QTest::newRow("below") << 12 << -1 << QStringLiteral("button-solid-12");
}

void TestTavikButton::sheet()
{
    QFETCH(int, rem);
    QFETCH(int, type);
    QFETCH(QString, file);
    LenConverter::m_rem = rem;
    const TavikButton button(TavikButton::Type(type), nullptr);
    QCOMPARE(button.styleSheet(), Support::expectedSheet(file));
    QCOMPARE(button.font().hintingPreference(), QFont::PreferVerticalHinting);
    QCOMPARE(button.isCheckable(), type == TavikButton::Toggle);
    QVERIFY(!button.isPaintOverrided());
}

void TestTavikButton::styleSettersWait()
{
    const struct
    {
        void (TavikButton::*set)(const QString &);
        QString (TavikButton::*get)() const;
        const char *value;
    } rows[] = {
        {&TavikButton::setBgColor, &TavikButton::bgColor, "#000001"},
        {&TavikButton::setHoverBgColor, &TavikButton::hoverBgColor, "#000002"},
        {&TavikButton::setPressBgColor, &TavikButton::pressBgColor, "#000003"},
        {&TavikButton::setCheckedBgColor, &TavikButton::checkedBgColor, "#000004"},
        {&TavikButton::setColor, &TavikButton::color, "#000005"},
        {&TavikButton::setHoverColor, &TavikButton::hoverColor, "#000006"},
        {&TavikButton::setCheckedColor, &TavikButton::checkedColor, "#000007"},
        {&TavikButton::setBorderColor, &TavikButton::borderColor, "#000008"},
        {&TavikButton::setHoverBorderColor, &TavikButton::hoverBorderColor, "#000009"},
        {&TavikButton::setPressBorderColor, &TavikButton::pressBorderColor, "#000010"},
        {&TavikButton::setCheckedBorderColor, &TavikButton::checkedBorderColor, "#000011"},
        {&TavikButton::setBorderWidth, &TavikButton::borderWidth, "2"},
        {&TavikButton::setBorderRadius, &TavikButton::borderRadius, "7"},
        {&TavikButton::setMargin, &TavikButton::margin, "3"},
    };
    TavikButton button;
    for (const auto &row : rows) {
        (button.*row.set)(QString::fromLatin1(row.value));
        QCOMPARE((button.*row.get)(), QString::fromLatin1(row.value));
    }
    QCOMPARE(button.styleSheet(), Support::expectedSheet(QStringLiteral("button-solid-12")));
    button.setFontRemSz(2.0); // restyles, and so shows what was stored before
    QCOMPARE(button.styleSheet(), Support::expectedSheet(QStringLiteral("button-every-property")));
}

void TestTavikButton::typeOnALiveButton()
{
    TavikButton button(TavikButton::Toggle);
    button.initStyleProperties(TavikButton::Solid);
    QCOMPARE(button.styleSheet(), Support::expectedSheet(QStringLiteral("button-toggle-12")));
    button.updateStyleSheet();
    // What Solid leaves alone keeps the value of the type before; no type ends being checkable.
    QCOMPARE(button.borderRadius(), QStringLiteral("0"));
    QCOMPARE(button.borderWidth(), QStringLiteral("1"));
    QVERIFY(button.isCheckable());
}

void TestTavikButton::constructors()
{
    QWidget parent;
    const TavikButton plain(&parent);
    QCOMPARE(plain.parentWidget(), &parent);
    const TavikButton text(tr("OK"), &parent);
    QCOMPARE(text.parentWidget(), &parent);
    QCOMPARE(text.text(), QStringLiteral("OK"));
    QCOMPARE(text.color(), QStringLiteral("#ffffff"));
    const TavikButton typed(tr("OK"), TavikButton::Link, &parent);
    QCOMPARE(typed.parentWidget(), &parent);
    QCOMPARE(typed.color(), QStringLiteral("#108ee9"));
}

void TestTavikButton::iconSizes()
{
    LenConverter::m_rem = 18;
    const TavikButton both(icon(), QSizeF(1.5, 2), tr("Colour"), TavikButton::Outline);
    QCOMPARE(both.iconSize(), QSize(27, 36));
    QCOMPARE(both.text(), QStringLiteral("Colour"));
    QVERIFY(!both.icon().isNull());
    const TavikButton scaled(icon(), QSizeF(16, 16), TavikButton::Flat);
    QCOMPARE(scaled.iconSize(), QSize(288, 288));
    QVERIFY(scaled.text().isEmpty());
    const TavikButton fixed(icon(), QSize(16, 16), TavikButton::Flat);
    QCOMPARE(fixed.iconSize(), QSize(16, 16));
    QCOMPARE(fixed.bgColor(), QStringLiteral("#ffffff"));
}

void TestTavikButton::pictureAndCaption()
{
    LenConverter::m_rem = 18;
    auto button = std::make_unique<TavikButton>(QString::fromLatin1(colorSet) + QLatin1String(".svg"),
                                                QSize(24, 12), new QLabel(tr("caption")));
    QVERIFY(button->styleSheet().isEmpty());
    QCOMPARE(button->font().hintingPreference(), QFont::PreferDefaultHinting);
    QCOMPARE(button->bgColor(), QStringLiteral("#08a274"));

    auto *box = qobject_cast<QHBoxLayout *>(button->layout());
    QVERIFY(box);
    QCOMPARE(box->count(), 2);
    QCOMPARE(static_cast<QLayoutItem *>(box)->alignment(), Qt::AlignCenter);
    auto *picture = qobject_cast<QLabel *>(box->itemAt(0)->widget());
    QVERIFY(picture);
    QCOMPARE(picture->size(), QSize(36, 18));
    QVERIFY(picture->hasScaledContents());
    QCOMPARE(Support::picture(picture).pixelColor(18, 9), QColor("#5C605F"));
    QPointer<QWidget> caption = box->itemAt(1)->widget();
    QCOMPARE(caption->parentWidget(), button.get());

    button->updateStyleSheet();
    QVERIFY(button->styleSheet().startsWith(QLatin1String("TavikButton {color: #ffffff;font-size: 21px;")));
    button.reset();
    QVERIFY(!caption);
}

void TestTavikButton::pictureAndCaptionWithout()
{
    for (const QString &path : {QString(), QStringLiteral(":/nowhere.png")}) {
        TavikButton button(path, QSize(24, 24), new QLabel(tr("caption")));
        button.resize(100, 40);
        auto *picture = qobject_cast<QLabel *>(button.layout()->itemAt(0)->widget());
        picture->setAttribute(Qt::WA_TranslucentBackground);
        QCOMPARE(picture->size(), QSize(24, 24));
        QCOMPARE(Support::picture(picture).pixelColor(12, 12).alpha(), 0);
    }
    expectWarning(QStringLiteral("Cannot add a null widget"));
    TavikButton button(QString(), QSize(24, 24), nullptr, nullptr);
    QCOMPARE(button.layout()->count(), 1);
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
    // The shared setters serve a connection by member pointer as the class's own would.
    QDoubleSpinBox box;
    connect(&box, qOverload<double>(&QDoubleSpinBox::valueChanged), &button, &TavikButton::setRemWidth);
    box.setValue(7);
    QCOMPARE(button.width(), 84);
}

void TestTavikButton::pictureButton_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<QColor>("colour");
    const QColor grey(0x5C, 0x60, 0x5F);
    const QColor active(Qt::red);
    const QColor selected(Qt::blue);
    QTest::newRow("rest") << QStringLiteral("rest") << grey;
    QTest::newRow("hover") << QStringLiteral("hover") << active;
    QTest::newRow("pressed looks like rest") << QStringLiteral("pressed") << grey;
    QTest::newRow("disabled looks like rest") << QStringLiteral("disabled") << grey;
    QTest::newRow("checked") << QStringLiteral("checked") << selected;
    QTest::newRow("checked wins over hover") << QStringLiteral("checked hover") << selected;
}

void TestTavikButton::pictureButton()
{
    QFETCH(QString, state);
    const auto plain = [](const QColor &colour) {
        QPixmap pixmap(60, 30);
        pixmap.fill(colour);
        return pixmap;
    };
    QIcon icon;
    icon.addPixmap(plain("#5C605F"), QIcon::Normal, QIcon::On);
    icon.addPixmap(plain(Qt::red), QIcon::Active, QIcon::On);
    icon.addPixmap(plain(Qt::blue), QIcon::Selected, QIcon::On);
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
    const QImage picture = Support::picture(&button);
    QFETCH(QColor, colour);
    for (const QPoint &point : {QPoint(0, 0), QPoint(30, 15), QPoint(59, 29)})
        QCOMPARE(picture.pixelColor(point), colour);
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
    const QImage picture = Support::picture(&ground);
    for (int x = 0; x < 60; ++x)
        QCOMPARE(picture.pixelColor(x, 15), QColor(Qt::magenta));
    QSignalSpy clicked(&button, &QPushButton::clicked);
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(clicked.count(), 1);
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
