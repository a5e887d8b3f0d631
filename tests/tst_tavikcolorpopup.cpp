#include "support.h"

#include <Tavik/LenConverter>
#include <Tavik/TavikButton>
#include <Tavik/TavikColorPicker>
#include <Tavik/TavikColorPopup>
#include <Tavik/TavikColorSilder>
#include <Tavik/TavikColorWell>
#include <Tavik/TavikLineEdit>

#include <QGraphicsDropShadowEffect>
#include <QLayout>
#include <QMetaMethod>
#include <QPointer>
#include <QScreen>

#include <algorithm>
#include <limits>
#include <memory>

using Counts = QVector<int>;
Q_DECLARE_METATYPE(QMargins)

class TestTavikColorPopup : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void contentsFit_data();
    void contentsFit();
    void placement_data();
    void placement();
    void showsAColour_data();
    void showsAColour();
    void typing_data();
    void typing();
    void overlongNumber();
    void hexadecimal_data();
    void hexadecimal();
    void controlsComeBeforeFields();
    void fieldsComeBeforeTheSignal();
    void truncations();
    void greysStayGrey();
    void palette();
    void samplerIsCancelled();
    void samplerReleases();
    void samplerIsDeletedByOthers();
    void samplerStartsWhileAnotherDoes();
    void deletedInItsOwnSignal();
    void wildColours();
    void sameShadow_data();
    void sameShadow();
};

namespace {

enum Edit { Hex, R, G, B, A, C, M, Y };

TavikLineEdit *edit(const TavikColorPopup &popup, int index)
{
    return popup.findChildren<TavikLineEdit *>().at(index);
}

QStringList texts(const TavikColorPopup &popup)
{
    QStringList all;
    for (int i = Hex; i <= Y; ++i)
        all.append(edit(popup, i)->text());
    return all;
}

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

TavikColorSilder *slider(const TavikColorPopup &popup, TavikColorSilder::Type type)
{
    return popup.findChildren<TavikColorSilder *>().at(type);
}

TavikColorPicker *picker(const TavikColorPopup &popup)
{
    return popup.findChild<TavikColorPicker *>();
}

TavikButton *pickButton(const TavikColorPopup &popup)
{
    return popup.findChild<TavikButton *>(QString(), Qt::FindDirectChildrenOnly);
}

/// The sampler that is on the screen, if one is.
QWidget *sampler()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (qstrcmp(widget->metaObject()->className(), "Screenshot") == 0 && widget->isVisible())
            return widget;
    }
    return nullptr;
}

/// What the popup looks like over a drag, a change of hue, of palette and focus, and a flip; with its own shadow
/// or with the toolkit's.
QVector<QImage> scenes(bool withPlainShadow)
{
    TavikColorPopup popup;
    if (withPlainShadow) {
        auto *effect = new QGraphicsDropShadowEffect(&popup);
        effect->setOffset(QPointF(0, 0));
        effect->setColor(Qt::black);
        effect->setBlurRadius(5);
        popup.setGraphicsEffect(effect);
    }
    QVector<QImage> pictures;
    const auto take = [&] { pictures.append(Support::picture(&popup)); };
    popup.showColorPopup(QPoint(200, -2000), QColor(20, 90, 200));
    take();
    for (int step = 0; step < 5; ++step) {
        picker(popup)->updateSelectedColor(20 * step + 5, 10 * step + 5);
        take();
    }
    slider(popup, TavikColorSilder::Hue)->setValue(200);
    take();
    popup.findChild<TavikColorWell *>()->addColor(QColor(255, 0, 0, 90));
    edit(popup, G)->setFocus();
    take();
    popup.showColorPopup(QPoint(200, 5000), QColor(20, 90, 200));
    take();
    return pictures;
}

struct Difference
{
    int pixels = 0;
    int levels = 0;
};

Difference difference(const QImage &one, const QImage &other)
{
    Difference found;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb p = one.pixel(x, y);
            const QRgb q = other.pixel(x, y);
            const int levels = qMax(qMax(qAbs(qRed(p) - qRed(q)), qAbs(qGreen(p) - qGreen(q))),
                                    qMax(qAbs(qBlue(p) - qBlue(q)), qAbs(qAlpha(p) - qAlpha(q))));
            found.pixels += levels > 0;
            found.levels = qMax(found.levels, levels);
        }
    }
    return found;
}

} // namespace

void TestTavikColorPopup::metaObject()
{
    const char *const names[] = {"colorChanged",
                                 "colorPopupHide",
                                 "setCurrentColor",
                                 "showColorPopup",
                                 "onHueChanged",
                                 "onAlphaChanged",
                                 "onSatValChanged",
                                 "onHexEditChanged",
                                 "onREditChanged",
                                 "onGEditChanged",
                                 "onBEditChanged",
                                 "onAEditChanged",
                                 "onCEditChanged",
                                 "onMEditChanged",
                                 "onYEditChanged",
                                 "onColorWellSelected",
                                 "onAddColorWellRequested",
                                 "onClickPickColor",
                                 "onPickColorChanged"};
    const QMetaObject &meta = TavikColorPopup::staticMetaObject;
    int index = meta.methodOffset();
    for (const char *name : names)
        QCOMPARE(meta.method(index++).name(), QByteArray(name));
    QCOMPARE(index, meta.methodCount());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
}

void TestTavikColorPopup::contentsFit_data()
{
    QTest::addColumn<int>("rem");
    for (int rem : Support::rems)
        QTest::addRow("%d", rem) << rem;
}

void TestTavikColorPopup::contentsFit()
{
    QFETCH(int, rem);
    LenConverter::m_rem = rem;
    TavikColorPopup popup;
    QCOMPARE(popup.size(), LenConverter::iniRemToPxSz(218, 398));
    QCOMPARE(popup.windowFlags() & (Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint),
             Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    popup.showColorPopup(QPoint(200, 10), Qt::red);
    QVERIFY(popup.layout()->minimumSize().height() <= popup.height());
    QCOMPARE(picker(popup)->size(), LenConverter::iniRemToPxSz(190, 136));
    QCOMPARE(edit(popup, Hex)->size(), LenConverter::iniRemToPxSz(60, 20));
    QCOMPARE(edit(popup, Y)->size(), LenConverter::iniRemToPxSz(28, 20));
    // No control is pushed over another.
    QCOMPARE(picker(popup)->geometry().intersected(slider(popup, TavikColorSilder::Hue)->geometry()),
             QRect());
    QVERIFY(edit(popup, C)->y() >= edit(popup, R)->geometry().bottom());
    QVERIFY(popup.findChild<TavikColorWell *>()->y() > edit(popup, Y)->geometry().bottom());
}

void TestTavikColorPopup::placement_data()
{
    QTest::addColumn<QPoint>("anchor");
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<QMargins>("margins");
    const int screen = QGuiApplication::primaryScreen()->size().height();
    const QMargins below(5, 19, 5, 5);
    const QMargins above(5, 5, 5, 19);
    // There is room below while 397 + 5 + 6 is less than what lies below the anchor.
    const auto row = [&](const char *name, int x, int room, bool isBelow) {
        const QPoint anchor(x, screen - room);
        QTest::newRow(name) << anchor << QPoint(x - 175, isBelow ? anchor.y() : anchor.y() - 398 - 14 + 5)
                            << (isBelow ? below : above);
    };
    row("room", 300, 500, true);
    row("just enough", 300, 409, true);
    row("just not", 300, 408, false);
    row("left of the screen", -50, 500, true);
    row("far right", 5000, 10, false);
    const QPoint beyond(std::numeric_limits<int>::min(), std::numeric_limits<int>::min());
    QTest::newRow("beyond all screens")
        << beyond << QPoint(-QWIDGETSIZE_MAX - 175, -QWIDGETSIZE_MAX) << below;
}

void TestTavikColorPopup::placement()
{
    QFETCH(QPoint, anchor);
    TavikColorPopup popup;
    popup.showColorPopup(anchor, Qt::red);
    QTEST(popup.pos(), "position");
    QTEST(popup.layout()->contentsMargins(), "margins");

    // The outline: white inside, nothing beside the arrow.
    QFETCH(QMargins, margins);
    const bool arrowUp = margins.top() > margins.bottom();
    const QImage picture = Support::picture(&popup);
    QCOMPARE(picture.pixelColor(175, arrowUp ? 16 : 386), QColor(Qt::white));
    QVERIFY(picture.pixelColor(100, arrowUp ? 10 : 392) != QColor(Qt::white));
    QCOMPARE(picture.pixelColor(8, arrowUp ? 314 : 300), QColor("#d3d3d3"));
    QVERIFY(picture.pixelColor(8, arrowUp ? 388 : 379) == QColor(Qt::white));
}

void TestTavikColorPopup::showsAColour_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QStringList>("fields");
    QTest::addColumn<int>("hue");
    QTest::addColumn<int>("alpha");
    QTest::newRow("chromatic") << QColor(10, 200, 30, 128) << words("0ac81e 10 200 30 128 245 55 225")
                               << 126 << 128;
    QTest::newRow("grey") << QColor(Qt::white) << words("ffffff 255 255 255 255 0 0 0") << 0 << 255;
    QTest::newRow("transparent black")
        << QColor(0, 0, 0, 0) << words("000000 0 0 0 0 255 255 255") << 0 << 0;
}

void TestTavikColorPopup::showsAColour()
{
    QFETCH(QColor, color);
    TavikColorPopup popup(Qt::blue);
    QCOMPARE(popup.currentColor(), QColor(Qt::blue));
    QVERIFY(!picker(popup)->currentColor().isValid());
    const QSignalSpy changed(&popup, &TavikColorPopup::colorChanged);
    popup.showColorPopup(QPoint(200, 10), color);
    QVERIFY(popup.isVisible());
    QTEST(texts(popup), "fields");
    QTEST(slider(popup, TavikColorSilder::Hue)->value(), "hue");
    QTEST(slider(popup, TavikColorSilder::Alpha)->value(), "alpha");
    QVERIFY(picker(popup)->currentHue() >= 0); // a grey opens with colours in the square
    QCOMPARE(popup.currentColor().rgba(), color.rgba());
    popup.setCurrentColor(Qt::green);
    QCOMPARE(changed.count(), 0);
}

void TestTavikColorPopup::typing_data()
{
    QTest::addColumn<int>("field");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("keys"); // '<' empties the field
    QTest::addColumn<Counts>("emitted");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("partner");
    const auto row = [](const char *name, Edit field, const char *before, const char *keys,
                        const Counts &emitted, const char *text, const char *partner) {
        QTest::newRow(name) << int(field) << QString::fromLatin1(before) << QString::fromLatin1(keys)
                            << emitted << QString::fromLatin1(text) << QString::fromLatin1(partner);
    };
    row("leading zeros go", R, "50", "007", {1, 1, 2}, "7", "248");
    row("emptied", R, "50", "<", {2}, "0", "255");
    row("emptied from 0", R, "0", "<", {1}, "", "255");
    row("green", G, "50", "12", {1, 1}, "12", "243");
    row("blue", B, "50", "9", {1}, "9", "246");
    row("cyan goes by red", C, "50", "5", {1}, "5", "250");
    row("magenta emptied", M, "50", "<", {1}, "0", "255");
    row("yellow", Y, "50", "255", {1, 1, 1}, "255", "0");
    row("alpha stays empty", A, "50", "<", {1}, "", "");
}

void TestTavikColorPopup::typing()
{
    QFETCH(int, field);
    QFETCH(QString, before);
    QFETCH(QString, keys);
    QFETCH(Counts, emitted);
    TavikColorPopup popup;
    popup.showColorPopup(QPoint(200, 10), QColor(10, 20, 30, 40));
    TavikLineEdit *typed = edit(popup, field);
    typed->setText(before);
    QSignalSpy changed(&popup, &TavikColorPopup::colorChanged);
    typed->selectAll();
    for (int i = 0; i < keys.size(); ++i) {
        changed.clear();
        if (keys.at(i) == QLatin1Char('<'))
            QTest::keyClick(typed, Qt::Key_Delete);
        else
            QTest::keyClicks(typed, keys.mid(i, 1));
        QCOMPARE(changed.count(), emitted.at(i));
        QCOMPARE(changed.last().first().value<QColor>(), popup.currentColor());
    }
    QTEST(typed->text(), "text");
    if (field != A) {
        const int partner = field < A ? field + 4 : field - 4;
        QTEST(edit(popup, partner)->text(), "partner");
    }
}

void TestTavikColorPopup::overlongNumber()
{
    expectWarning(QStringLiteral("^\"QColor::setRed\": invalid value 999"));
    expectWarning(QStringLiteral("^\"QColor::setRed\": invalid value 329"));
    TavikColorPopup popup;
    popup.showColorPopup(QPoint(200, 10), Qt::black);
    edit(popup, R)->selectAll();
    QTest::keyClicks(edit(popup, R), QStringLiteral("999"));
    // The partner cuts "-744" to three characters, and writes 255 + 74 back.
    QCOMPARE(edit(popup, C)->text(), QStringLiteral("-74"));
    QCOMPARE(edit(popup, R)->text(), QStringLiteral("329"));
    QCOMPARE(popup.currentColor().red(), 255);
}

void TestTavikColorPopup::hexadecimal_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QStringList>("fields");
    QTest::newRow("six digits") << QStringLiteral("0ac81e") << QColor(10, 200, 30, 40)
                                << words("0ac81e 10 200 30 40 245 55 225");
    QTest::newRow("three are short for six")
        << QStringLiteral("abc") << QColor(0xaa, 0xbb, 0xcc, 40) << words("abc 170 187 204 40 85 68 51");
    QTest::newRow("four are none") << QStringLiteral("abcd") << QColor()
                                   << words("abcd 0 0 0 40 255 255 255");
}

void TestTavikColorPopup::hexadecimal()
{
    QFETCH(QString, keys);
    QFETCH(QColor, color);
    TavikColorPopup popup;
    popup.showColorPopup(QPoint(200, 10), QColor(1, 2, 3, 40));
    TavikLineEdit *hex = edit(popup, Hex);
    hex->selectAll();
    QTest::keyClick(hex, Qt::Key_Delete);
    const QSignalSpy changed(&popup, &TavikColorPopup::colorChanged);
    QTest::keyClicks(hex, keys);
    QCOMPARE(changed.count(), keys.size());
    QTEST(texts(popup), "fields");
    QCOMPARE(popup.currentColor().isValid(), color.isValid());
    QCOMPARE(popup.currentColor().alpha(), 40);
    if (color.isValid())
        QCOMPARE(popup.currentColor().rgba(), color.rgba());
    else
        QCOMPARE(slider(popup, TavikColorSilder::Hue)->value(), 0);
}

void TestTavikColorPopup::controlsComeBeforeFields()
{
    TavikColorPopup popup;
    popup.showColorPopup(QPoint(200, 10), QColor(10, 20, 30));
    const QStringList before = texts(popup);
    QStringList seen;
    connect(&popup, &TavikColorPopup::colorChanged, this, [&] { seen = texts(popup); });
    QSignalSpy changed(&popup, &TavikColorPopup::colorChanged);

    QTest::mousePress(picker(popup), Qt::LeftButton, {}, QPoint(100, 20));
    QCOMPARE(seen, before);
    QVERIFY(texts(popup) != before);
    slider(popup, TavikColorSilder::Hue)->setValue(77);
    slider(popup, TavikColorSilder::Alpha)->setValue(77);
    QCOMPARE(changed.count(), 3);
    QCOMPARE(edit(popup, A)->text(), QStringLiteral("77"));
    QCOMPARE(int(popup.currentColor().hueF() * 360), 77);
}

void TestTavikColorPopup::fieldsComeBeforeTheSignal()
{
    TavikColorPopup popup;
    popup.showColorPopup(QPoint(200, 10), QColor(10, 20, 30));
    QString hex;
    double hue = 0;
    connect(&popup, &TavikColorPopup::colorChanged, this, [&] {
        hex = edit(popup, Hex)->text();
        hue = slider(popup, TavikColorSilder::Hue)->value();
    });
    edit(popup, R)->setText(QStringLiteral("200"));
    QCOMPARE(hex, QStringLiteral("c8141e"));
    QCOMPARE(hue, 356.0);
}

void TestTavikColorPopup::truncations()
{
    TavikColorPopup popup;
    popup.setCurrentColor(QColor::fromHsvF(0.3333, 1.0, 1.0, 0.999));
    QCOMPARE(slider(popup, TavikColorSilder::Hue)->value(), 119);
    QCOMPARE(slider(popup, TavikColorSilder::Alpha)->value(), 254);
    picker(popup)->updateSelectedColor(50, 50);
    QCOMPARE(popup.currentColor().hsvHue(), 119); // the controls' rounding is in the colour now
}

void TestTavikColorPopup::greysStayGrey()
{
    TavikColorPopup popup;
    popup.setCurrentColor(QColor(128, 128, 128));
    QCOMPARE(slider(popup, TavikColorSilder::Hue)->value(), 0);
    QCOMPARE(picker(popup)->currentHue(), -1);
    slider(popup, TavikColorSilder::Hue)->setValue(120);
    QCOMPARE(picker(popup)->currentHue(), 0);
}

void TestTavikColorPopup::palette()
{
    TavikColorPopup popup;
    popup.showColorPopup(QPoint(200, 10), QColor(10, 20, 30, 40));
    auto *well = popup.findChild<TavikColorWell *>();
    QSignalSpy changed(&popup, &TavikColorPopup::colorChanged);
    well->findChild<TavikButton *>()->click();
    QCOMPARE(changed.count(), 0);
    popup.setCurrentColor(Qt::red);
    QTest::mousePress(well, Qt::RightButton, {}, QPoint(5, 5));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(popup.currentColor().rgba(), qRgba(10, 20, 30, 40)); // with its alpha
    QCOMPARE(edit(popup, A)->text(), QStringLiteral("40"));
}

void TestTavikColorPopup::samplerIsCancelled()
{
    TavikColorPopup popup;
    popup.showColorPopup(QPoint(200, 10), Qt::red);
    const QSignalSpy changed(&popup, &TavikColorPopup::colorChanged);
    const QSignalSpy hidden(&popup, &TavikColorPopup::colorPopupHide);
    popup.hide();
    QCOMPARE(hidden.count(), 0); // no sampler yet
    popup.show();
    pickButton(popup)->click();
    QVERIFY(sampler());
    QTest::keyClick(sampler(), Qt::Key_Escape);
    QVERIFY(!sampler());
    QCOMPARE(changed.count(), 0);
    QVERIFY(popup.currentColor() == QColor(Qt::red).toHsv());
    popup.show();
    popup.hide();
    QVERIFY(hidden.count() >= 1); // the cancelled one is still known
}

void TestTavikColorPopup::samplerReleases()
{
    auto popup = std::make_unique<TavikColorPopup>();
    QVector<QPointer<QWidget>> runs;
    for (int i = 0; i < 10; ++i) {
        popup->show();
        pickButton(*popup)->click();
        runs.append(sampler());
        QTest::keyClick(sampler(), Qt::Key_Escape);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        for (int past = 0; past < i; ++past)
            QVERIFY(!runs.at(past));
    }
    QVERIFY(runs.last());
    popup.reset();
    QVERIFY(!runs.last());
}

/// As an application does that deletes all its windows.
void TestTavikColorPopup::samplerIsDeletedByOthers()
{
    TavikColorPopup popup;
    const QSignalSpy hidden(&popup, &TavikColorPopup::colorPopupHide);
    for (int i = 0; i < 2; ++i) {
        popup.show();
        pickButton(popup)->click();
        delete sampler();
    }
    popup.show();
    popup.hide();
    QCOMPARE(hidden.count(), 0); // there is no sampler any more
}

void TestTavikColorPopup::samplerStartsWhileAnotherDoes()
{
    TavikColorPopup popup;
    popup.show();
    pickButton(popup)->click();
    QTest::keyClick(sampler(), Qt::Key_Escape);
    popup.show();
    auto once = std::make_shared<QMetaObject::Connection>();
    *once = connect(&popup, &TavikColorPopup::colorPopupHide, &popup, [&] {
        disconnect(*once);
        pickButton(popup)->click();
    });
    pickButton(popup)->click(); // closes the popup, which tells so
    QVERIFY(!*once);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const auto isSampler = [](const QWidget *window) { return window->inherits("Screenshot"); };
    const QWidgetList windows = QApplication::topLevelWidgets();
    QCOMPARE(std::count_if(windows.begin(), windows.end(), isSampler), 1);
}

void TestTavikColorPopup::deletedInItsOwnSignal()
{
    auto *popup = new TavikColorPopup;
    const QPointer<QObject> guard(popup);
    connect(popup, &TavikColorPopup::colorChanged, popup, &QObject::deleteLater);
    popup->showColorPopup(QPoint(200, 10), Qt::red);
    pickButton(*popup)->click();
    const QPointer<QWidget> running = sampler();
    edit(*popup, R)->setText(QStringLiteral("7"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!guard);
    QVERIFY(!running);
}

void TestTavikColorPopup::wildColours()
{
    TavikColorPopup popup;
    for (const QColor &color : {QColor(), QColor::fromCmyk(1, 2, 3, 4), QColor::fromHsl(350, 255, 1),
                                QColor::fromRgbF(0.5, 0.25, 0.125, 0.0625), QColor(Qt::transparent)}) {
        popup.showColorPopup(QPoint(-5, -5), color);
        Support::picture(&popup);
    }
}

void TestTavikColorPopup::sameShadow_data()
{
    contentsFit_data();
}

void TestTavikColorPopup::sameShadow()
{
    QFETCH(int, rem);
    LenConverter::m_rem = rem;
    // One after the other, for only one window has the focus.
    const QVector<QImage> ours = scenes(false);
    const QVector<QImage> plain = scenes(true);
    for (int i = 0; i < plain.size(); ++i) {
        const Difference found = difference(ours.at(i), plain.at(i));
        QVERIFY2(
            found.pixels <= 10 && found.levels <= 2,
            qPrintable(
                QStringLiteral("scene %1: %2 pixels by %3").arg(i).arg(found.pixels).arg(found.levels)));
    }
}

TAVIK_TEST_MAIN(TestTavikColorPopup)
#include "tst_tavikcolorpopup.moc"
