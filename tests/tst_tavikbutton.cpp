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
    void sizes();
    void pictureButton();
    void pictureButtonWithoutIcon();
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
    using Setter = void (TavikButton::*)(const QString &);
    const Setter colours[] = {&TavikButton::setBgColor,
                              &TavikButton::setHoverBgColor,
                              &TavikButton::setPressBgColor,
                              &TavikButton::setCheckedBgColor,
                              &TavikButton::setColor,
                              &TavikButton::setHoverColor,
                              &TavikButton::setCheckedColor,
                              &TavikButton::setBorderColor,
                              &TavikButton::setHoverBorderColor,
                              &TavikButton::setPressBorderColor,
                              &TavikButton::setCheckedBorderColor};
    TavikButton button;
    int number = 0;
    for (const Setter set : colours)
        (button.*set)(QStringLiteral("#%1").arg(++number, 6, 10, QLatin1Char('0')));
    button.setBorderWidth(QStringLiteral("2"));
    button.setBorderRadius(QStringLiteral("7"));
    button.setMargin(QStringLiteral("3"));
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

void TestTavikButton::sizes()
{
    TavikButton button;
    button.setRemSize(8, 2.5);
    QCOMPARE(button.size(), QSize(96, 30));
    button.setRemWidth(5);
    button.setRemHeight(6);
    QCOMPARE(button.size(), QSize(60, 72));
}

void TestTavikButton::pictureButton()
{
    QIcon icon;
    QPixmap pixmap(60, 30);
    for (const auto &[mode, colour] :
         {std::pair(QIcon::Normal, Qt::green), std::pair(QIcon::Active, Qt::red),
          std::pair(QIcon::Selected, Qt::blue)}) {
        pixmap.fill(colour);
        icon.addPixmap(pixmap, mode, QIcon::On);
    }
    const std::pair<const char *, Qt::GlobalColor> rows[] = {{"", Qt::green},
                                                             {"hover", Qt::red},
                                                             {"pressed", Qt::green}, // looks like rest
                                                             {"disabled", Qt::green},
                                                             {"checked hover", Qt::blue}};
    for (const auto &[name, colour] : rows) {
        const QString state = QString::fromLatin1(name);
        TavikButton button(icon, QSize(4, 4), TavikButton::Solid);
        button.setText(tr("never drawn"));
        button.setIsPaintOverrided(true);
        button.setFixedSize(60, 30);
        button.setCheckable(true);
        button.setChecked(state.contains(QLatin1String("checked")));
        button.setEnabled(state != QLatin1String("disabled"));
        button.show();
        if (state.contains(QLatin1String("hover")))
            Support::hover(&button);
        button.setDown(state == QLatin1String("pressed"));
        // The picture fills the whole button, whatever the icon's size is.
        pixmap.fill(colour);
        QCOMPARE(Support::picture(&button), pixmap.toImage().convertToFormat(QImage::Format_ARGB32));
    }
}

void TestTavikButton::pictureButtonWithoutIcon()
{
    TavikButton button(tr("never drawn"));
    button.setIsPaintOverrided(true);
    button.resize(60, 30);
    QImage ground(60, 30, QImage::Format_ARGB32);
    ground.fill(Qt::magenta);
    QImage painted = ground;
    button.render(&painted, QPoint(), QRegion(), {});
    QCOMPARE(painted, ground);
}

TAVIK_TEST_MAIN(TestTavikButton)
#include "tst_tavikbutton.moc"
