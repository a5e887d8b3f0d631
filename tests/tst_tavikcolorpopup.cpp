#include "colorsupport.h"
#include "plaincolor.h"

#include <Tavik/LenConverter>
#include <Tavik/TavikButton>
#include <Tavik/TavikColorPicker>
#include <Tavik/TavikColorPopup>
#include <Tavik/TavikColorSilder>
#include <Tavik/TavikColorWell>
#include <Tavik/TavikLineEdit>

#include <QDialog>
#include <QLayout>
#include <QPointer>
#include <QScreen>

#include <limits>

using Counts = QVector<int>;

class TestTavikColorPopup : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void contentsFit();
    void placement();
    void goesWhileOpen();
    void showsAColour();
    void typing_data();
    void typing();
    void order();
    void truncations();
    void repaintsOnlyWhatChanges();
    void palette();
    void samplerRuns();
    void samplerOverAModalDialog();
    void sameShadow();
    void shadowOnAnotherScreen();
};

namespace {

enum Edit { Hex, R, G, B, A, C, M, Y };

TavikLineEdit *edit(const TavikColorPopup &popup, int index)
{
    return popup.findChildren<TavikLineEdit *>().at(index);
}

/// What the eight fields show.
QString texts(const TavikColorPopup &popup)
{
    QStringList all;
    for (const TavikLineEdit *field : popup.findChildren<TavikLineEdit *>())
        all.append(field->text());
    return all.join(QLatin1Char(' '));
}

TavikColorSilder *slider(const TavikColorPopup &popup, TavikColorSilder::Type type)
{
    return popup.findChildren<TavikColorSilder *>().at(type);
}

TavikColorPicker *picker(const TavikColorPopup &popup)
{
    return popup.findChild<TavikColorPicker *>();
}

/// Starts the sampler, and returns its window.
QWidget *startSampler(const TavikColorPopup &popup)
{
    popup.findChild<TavikButton *>(QString(), Qt::FindDirectChildrenOnly)->click();
    return Support::runningSampler();
}

/// What the popup looks like over a drag, a change of hue, of palette and focus, and a flip; with its own shadow
/// or with the toolkit's.
QVector<QImage> scenes(bool withPlainShadow)
{
    TavikColorPopup popup;
    if (withPlainShadow)
        Plain::addShadow(&popup);
    QVector<QImage> pictures;
    const auto take = [&] {
        QCoreApplication::processEvents(); // the controls move only then
        pictures.append(Support::picture(&popup));
    };
    popup.showColorPopup(QPoint(200, -2000), QColor(20, 90, 200));
    take();
    picker(popup)->updateSelectedColor(65, 35);
    take();
    slider(popup, TavikColorSilder::Hue)->setValue(200);
    take();
    popup.findChild<TavikColorWell *>()->addColor(QColor(255, 0, 0, 90));
    edit(popup, G)->setFocus();
    take();
    popup.showColorPopup(QPoint(200, 5000), QColor(20, 90, 200));
    take();
    return pictures;
}

/// Whether two pictures differ in no more than a few pixels, and in those by what nobody sees.
bool areAlike(const QImage &one, const QImage &other)
{
    if (one.size() != other.size())
        return false;
    int differing = 0;
    int greatest = 0;
    for (int i = 0; i < int(one.sizeInBytes()); ++i) {
        const int difference = qAbs(one.constBits()[i] - other.constBits()[i]);
        differing += difference > 0;
        greatest = qMax(greatest, difference);
    }
    return differing <= 40 && greatest <= 2;
}

} // namespace

void TestTavikColorPopup::contentsFit()
{
    for (const int rem : Support::rems) {
        LenConverter::m_rem = rem;
        TavikColorPopup popup;
        popup.showColorPopup(QPoint(200, 10), Qt::red);
        QCOMPARE(popup.size(), LenConverter::iniRemToPxSz(218, 398));
        QVERIFY(popup.layout()->minimumSize().height() <= popup.height());
        QCOMPARE(edit(popup, Hex)->size(), LenConverter::iniRemToPxSz(60, 20));
        QCOMPARE(edit(popup, Y)->size(), LenConverter::iniRemToPxSz(28, 20));
    }
}

/// It closes only when it is no popup any more; its field then mends what was typed, and tells so.
void TestTavikColorPopup::goesWhileOpen()
{
    QLineEdit before;
    before.show();
    QApplication::setActiveWindow(&before);
    before.setFocus();
    auto *popup = new TavikColorPopup;
    QSignalSpy changed(popup, &TavikColorPopup::colorChanged);
    popup->showColorPopup(QPoint(200, 10), Qt::black);
    edit(*popup, A)->setFocus();
    edit(*popup, A)->setText(QStringLiteral("1,2"));
    QCOMPARE(changed.count(), 1);
    delete popup;
    QCOMPARE(changed.count(), 1);
    QVERIFY(before.hasFocus());
}

void TestTavikColorPopup::placement()
{
    const struct
    {
        int x;
        int room; // between the anchor and the lower edge of the screen
        bool isBelow;
    } rows[] = {{300, 409, true}, // just more than 397 + 5 + 6
                {300, 408, false},
                {-50, 500, true}, // left of the screen
                {5000, 10, false}};
    TavikColorPopup popup;
    for (const auto &[x, room, isBelow] : rows) {
        const int y = QGuiApplication::primaryScreen()->size().height() - room;
        popup.showColorPopup({x, y}, Qt::red);
        QCOMPARE(popup.pos(), QPoint(x - 175, isBelow ? y : y - 398 - 14 + 5));
        QCOMPARE(popup.layout()->contentsMargins(),
                 isBelow ? QMargins(5, 19, 5, 5) : QMargins(5, 5, 5, 19));

        // The outline: white inside, nothing beside the arrow and below.
        const QImage picture = Support::picture(&popup);
        QCOMPARE(picture.pixelColor(175, isBelow ? 16 : 386), QColor(Qt::white));
        QVERIFY(picture.pixelColor(100, isBelow ? 10 : 392) != QColor(Qt::white));
        QCOMPARE(picture.pixelColor(8, isBelow ? 314 : 300), QColor("#d3d3d3"));
        QCOMPARE(picture.pixelColor(8, isBelow ? 388 : 379), QColor(Qt::white));
        QVERIFY(picture.pixelColor(8, 395) != QColor(Qt::white));
    }
    const int beyond = std::numeric_limits<int>::min(); // all screens
    popup.showColorPopup({beyond, beyond}, Qt::red);
    QCOMPARE(popup.pos(), QPoint(-QWIDGETSIZE_MAX - 175, -QWIDGETSIZE_MAX));
}

void TestTavikColorPopup::showsAColour()
{
    const struct
    {
        QColor color;
        const char *fields;
        int hue;
    } rows[] = {{QColor(10, 200, 30, 128), "0ac81e 10 200 30 128 245 55 225", 126},
                {Qt::white, "ffffff 255 255 255 255 0 0 0", 0},
                {QColor(0, 0, 0, 0), "000000 0 0 0 0 255 255 255", 0}};
    TavikColorPopup popup;
    const QSignalSpy changed(&popup, &TavikColorPopup::colorChanged);
    for (const auto &[color, fields, hue] : rows) {
        popup.showColorPopup(QPoint(200, 10), color);
        QCOMPARE(texts(popup), QString::fromLatin1(fields));
        QCOMPARE(slider(popup, TavikColorSilder::Hue)->value(), hue);
        QCOMPARE(slider(popup, TavikColorSilder::Alpha)->value(), color.alpha());
        QVERIFY(picker(popup)->currentHue() >= 0); // a grey opens with colours in the square
        QCOMPARE(popup.currentColor().rgba(), color.rgba());
    }
    popup.setCurrentColor(Qt::green);
    QCOMPARE(changed.count(), 0);
}

void TestTavikColorPopup::typing_data()
{
    QTest::addColumn<int>("field");
    QTest::addColumn<QString>("keys"); // '<' deletes: first the whole text, then a character
    QTest::addColumn<Counts>("emitted");
    QTest::addColumn<QString>("fields");
    const auto row = [](const char *name, Edit field, const char *keys, const Counts &emitted,
                        const char *fields) {
        QTest::newRow(name) << int(field) << QString::fromLatin1(keys) << emitted
                            << QString::fromLatin1(fields);
    };
    row("leading zeros go", R, "007", {1, 1, 2}, "073232 7 50 50 40 248 205 205");
    row("emptied, also from 0", R, "<<", {2, 1}, "003232  50 50 40 255 205 205");
    // The partner cuts "-744" to three characters, and writes 255 + 74 back.
    row("overlong", R, "999", {1, 1, 2}, "ff3232 329 50 50 40 -74 205 205");
    row("green", G, "12", {1, 1}, "320c32 50 12 50 40 205 243 205");
    row("blue", B, "9", {1}, "323209 50 50 9 40 205 205 246");
    row("cyan goes by red", C, "5", {1}, "fa3232 250 50 50 40 5 205 205");
    row("magenta emptied", M, "<", {1}, "32ff32 50 255 50 40 205 0 205");
    row("yellow", Y, "255", {1, 1, 1}, "323200 50 50 0 40 205 205 255");
    row("alpha stays empty", A, "<", {1}, "323232 50 50 50  205 205 205");
    row("six digits", Hex, "<0ac81e", {1, 1, 1, 1, 1, 1, 1}, "0ac81e 10 200 30 40 245 55 225");
    row("three are short for six", Hex, "<abc", {1, 1, 1, 1}, "abc 170 187 204 40 85 68 51");
    row("four are none", Hex, "<abcd", {1, 1, 1, 1, 1}, "abcd 0 0 0 40 255 255 255");
}

void TestTavikColorPopup::typing()
{
    QFETCH(int, field);
    QFETCH(QString, keys);
    QFETCH(Counts, emitted);
    allowWarning(QStringLiteral("^\"QColor::setRed\": invalid value (999|329)"));
    TavikColorPopup popup;
    popup.showColorPopup(QPoint(200, 10), QColor(50, 50, 50, 40));
    TavikLineEdit *typed = edit(popup, field);
    QSignalSpy changed(&popup, &TavikColorPopup::colorChanged);
    typed->selectAll();
    for (int i = 0; i < keys.size(); ++i) {
        changed.clear();
        if (keys.at(i) == QLatin1Char('<'))
            QTest::keyClick(typed, Qt::Key_Backspace);
        else
            QTest::keyClicks(typed, keys.mid(i, 1));
        QCOMPARE(changed.count(), emitted.at(i));
        QCOMPARE(changed.last().first().value<QColor>(), popup.currentColor());
    }
    QTEST(texts(popup), "fields");
    const QColor color = popup.currentColor();
    QCOMPARE(color.isValid(), keys != QLatin1String("<abcd"));
    QCOMPARE(color.alpha(), edit(popup, A)->text().toInt());
    QCOMPARE(slider(popup, TavikColorSilder::Hue)->value(), qMax(0, int(color.hueF() * 360.0)));
}

void TestTavikColorPopup::order()
{
    TavikColorPopup popup;
    popup.showColorPopup(QPoint(200, 10), QColor(10, 20, 30));
    QString seen;
    int hue = 0;
    connect(&popup, &TavikColorPopup::colorChanged, this, [&] {
        seen = texts(popup);
        hue = slider(popup, TavikColorSilder::Hue)->value();
    });
    const QSignalSpy changed(&popup, &TavikColorPopup::colorChanged);
    // A control speaks before the fields follow,
    QString before = texts(popup);
    QTest::mousePress(picker(popup), Qt::LeftButton, {}, QPoint(100, 20));
    QCOMPARE(seen, before);
    before = texts(popup);
    QVERIFY(before != seen);
    slider(popup, TavikColorSilder::Hue)->setValue(77);
    QCOMPARE(seen, before);
    QCOMPARE(int(popup.currentColor().hueF() * 360), 77);
    QCOMPARE(QLatin1Char('#') + edit(popup, Hex)->text(), popup.currentColor().name());
    slider(popup, TavikColorSilder::Alpha)->setValue(200);
    QCOMPARE(edit(popup, A)->text(), QStringLiteral("200"));
    QCOMPARE(popup.currentColor().alpha(), 200);
    QCOMPARE(changed.count(), 3);
    // and a field when all else has followed.
    popup.setCurrentColor(QColor(10, 20, 30));
    edit(popup, R)->setText(QStringLiteral("200"));
    QCOMPARE(seen, QStringLiteral("c8141e 200 20 30 255 55 235 225"));
    QCOMPARE(hue, 356);
}

void TestTavikColorPopup::truncations()
{
    TavikColorPopup popup;
    popup.setCurrentColor(QColor::fromHsvF(0.3333, 1.0, 1.0, 0.999));
    QCOMPARE(slider(popup, TavikColorSilder::Hue)->value(), 119);
    QCOMPARE(slider(popup, TavikColorSilder::Alpha)->value(), 254);
    picker(popup)->updateSelectedColor(50, 50);
    QCOMPARE(popup.currentColor().hsvHue(), 119); // the controls' rounding is in the colour now

    popup.setCurrentColor(QColor(128, 128, 128));
    QCOMPARE(slider(popup, TavikColorSilder::Hue)->value(), 0);
    QCOMPARE(picker(popup)->currentHue(), -1);
    slider(popup, TavikColorSilder::Hue)->setValue(120);
    QCOMPARE(picker(popup)->currentHue(), 0);
}

void TestTavikColorPopup::repaintsOnlyWhatChanges()
{
    TavikColorPopup popup;
    popup.showColorPopup(QPoint(200, 10), QColor(10, 20, 30));
    Support::PaintCounter square(picker(popup));
    Support::PaintCounter hue(slider(popup, TavikColorSilder::Hue)); // between the square and the fields
    square.take();
    hue.take();
    picker(popup)->updateSelectedColor(50, 50);
    QCOMPARE(square.take(), 1);
    QCOMPARE(hue.take(), 0);
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
    QColor seen;
    connect(&popup, &TavikColorPopup::colorChanged, this, [&] { seen = popup.currentColor(); });
    QTest::mousePress(well, Qt::RightButton, {}, QPoint(5, 5));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(seen, popup.currentColor());                         // it is set before it is told
    QCOMPARE(popup.currentColor().rgba(), qRgba(10, 20, 30, 40)); // with its alpha
    QCOMPARE(edit(popup, A)->text(), QStringLiteral("40"));
}

/// A run that is cancelled and one that picks, with what they say of the popup's hiding.
void TestTavikColorPopup::samplerRuns()
{
    TavikColorPopup popup;
    popup.showColorPopup(QPoint(200, 10), QColor(255, 0, 0, 90));
    const QSignalSpy changed(&popup, &TavikColorPopup::colorChanged);
    const QSignalSpy hidden(&popup, &TavikColorPopup::colorPopupHide);
    const QPointer<QWidget> cancelled = startSampler(popup);
    QVERIFY(!popup.isVisible()); // closed by the sampler's window, before that was known
    QCOMPARE(hidden.count(), 0);
    QTest::keyClick(cancelled, Qt::Key_Escape);
    QVERIFY(!cancelled->isVisible());
    QCOMPARE(changed.count(), 0);
    QCOMPARE(popup.currentColor().rgba(), qRgba(255, 0, 0, 90));

    popup.show();
    const QPointer<QWidget> running = startSampler(popup); // the cancelled one is still known then
    QCOMPARE(hidden.count(), 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!cancelled);
    popup.show();
    popup.hide();
    QCOMPARE(hidden.count(), 2);
    // As if it had been pressed: there is no picture of a headless screen.
    QMetaObject::invokeMethod(running, "screenColor", Q_ARG(QColor, QColor(1, 2, 3)));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.last().first().value<QColor>(), QColor(1, 2, 3));
    QCOMPARE(texts(popup), QStringLiteral("010203 1 2 3 255 254 253 252"));
    QCOMPARE(hidden.count(), 3);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!running);
    popup.show();
    popup.hide();
    QCOMPARE(hidden.count(), 3);

    auto gone = std::make_unique<TavikColorPopup>();
    const QPointer<QWidget> left = startSampler(*gone);
    gone.reset();
    QVERIFY(!left);
}

void TestTavikColorPopup::samplerOverAModalDialog()
{
    QDialog dialog;
    TavikColorPopup popup(Qt::red, &dialog);
    dialog.setModal(true);
    dialog.show();
    popup.showColorPopup(QPoint(200, 10), Qt::red);
    const QWidget *sampler = startSampler(popup);
    QTest::keyClick(sampler->windowHandle(), Qt::Key_Escape); // as the window system tells of a key
    QVERIFY(!sampler->isVisible());
}

void TestTavikColorPopup::sameShadow()
{
    QApplication::setCursorFlashTime(0); // a text cursor that is there, or not, by chance
    for (const int rem : Support::rems) {
        LenConverter::m_rem = rem;
        // One after the other, for only one window has the focus.
        const QVector<QImage> ours = scenes(false);
        const QVector<QImage> plain = scenes(true);
        for (int i = 0; i < plain.size(); ++i)
            QVERIFY2(areAlike(ours.at(i), plain.at(i)), qPrintable(QString::number(i)));
    }
}

void TestTavikColorPopup::shadowOnAnotherScreen()
{
    struct Popup : TavikColorPopup
    {
        int ratio = 1;
        int metric(PaintDeviceMetric of) const override
        {
            return of == PdmDevicePixelRatioScaled ? int(ratio * devicePixelRatioFScale())
                                                   : TavikColorPopup::metric(of);
        }
    };
    Popup moved;
    Popup made;
    made.ratio = 2;
    for (Popup *popup : {&moved, &made}) {
        popup->showColorPopup(QPoint(200, 10), Qt::red);
        popup->hide();
    }
    moved.ratio = 2;
    moved.showColorPopup(QPoint(200, 10), Qt::red);
    made.showColorPopup(QPoint(200, 10), Qt::red);
    QCOMPARE(Support::picture(&moved), Support::picture(&made));
}

TAVIK_TEST_MAIN(TestTavikColorPopup)
#include "tst_tavikcolorpopup.moc"
