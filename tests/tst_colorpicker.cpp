#include "colorsupport.h"
#include "plaincolor.h"

#include <Tavik/TavikColorPicker>

#include <QRandomGenerator>

#include <climits>
#include <cmath>

/// The square of saturations and values.
class TestColorPicker : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void looksAsThePlainWay_data();
    void looksAsThePlainWay();
    void randomHues();
    void imageFollowsHue();
    void refusedHues_data();
    void refusedHues();
    void picks_data();
    void picks();
    void drag();
    void settersAreSilent();
    void circleStandsOut();
    void emptySquares_data();
    void emptySquares();
};

namespace {

const QString refused = QStringLiteral("^QColor::setHsvF: HSV parameters out of range");

QImage plainPicture(const QSize &size, double hue, const QColor &color)
{
    Plain::Picker plain(size.width(), size.height());
    plain.hue = hue;
    plain.color = color;
    return Support::picture(&plain);
}

} // namespace

void TestColorPicker::looksAsThePlainWay_data()
{
    QTest::addColumn<double>("hue");
    QTest::addColumn<QSize>("size");
    const double sixth = 1 / 6.0;
    const double hues[] = {0.0,       -0.0, sixth, 1 / 3.0,  0.5,      4 * sixth, 5 * sixth,
                           0.0999999, 0.25, 0.75,  0.999986, 0.999999, 1.0,       -1.0};
    for (const double hue : hues)
        QTest::addRow("%.6f", hue) << hue << QSize(190, 136);
    for (const QSize &size : {QSize(3, 3), QSize(3, 60), QSize(60, 3), QSize(285, 204), QSize(475, 340)})
        QTest::addRow("%dx%d", size.width(), size.height()) << 0.4321 << size;
}

void TestColorPicker::looksAsThePlainWay()
{
    QFETCH(double, hue);
    QFETCH(QSize, size);
    TavikColorPicker picker(size.width(), size.height());
    picker.setCurrentHue(hue);
    QCOMPARE(Support::picture(&picker), plainPicture(size, hue, QColor()));
    const QColor color = QColor::fromHsvF(0.2, 0.75, 0.3);
    picker.setCurrentColor(color);
    QCOMPARE(Support::picture(&picker), plainPicture(size, hue, color));
}

void TestColorPicker::randomHues()
{
    QRandomGenerator random(5);
    for (int i = 0; i < 60; ++i) {
        const double hue = random.generateDouble();
        const QSize size(random.bounded(3, 90), random.bounded(3, 90));
        TavikColorPicker picker(size.width(), size.height());
        picker.setCurrentHue(hue);
        QVERIFY2(Support::picture(&picker) == plainPicture(size, hue, QColor()),
                 qPrintable(QString::number(hue, 'g', 17)));
    }
}

void TestColorPicker::imageFollowsHue()
{
    TavikColorPicker picker(120, 80);
    for (const double hue : {0.3, 0.3 + 1 / 36000.0, 0.9, 0.3, -1.0, 5.0, 0.3}) {
        picker.setCurrentHue(hue);
        if (hue == 0.9)
            picker.updateColors(); // before a paint
        if (hue != 5.0)
            QCOMPARE(Support::picture(&picker), plainPicture(picker.size(), hue, QColor()));
    }
}

void TestColorPicker::refusedHues_data()
{
    QTest::addColumn<double>("hue");
    QTest::addColumn<int>("whole");
    QTest::newRow("above") << 2.5 << 2;
    QTest::newRow("below") << -0.5 << 0;
    QTest::newRow("far above") << 1e300 << INT_MAX;
    QTest::newRow("far below") << -std::numeric_limits<double>::infinity() << INT_MIN;
    QTest::newRow("no number") << std::nan("") << INT_MIN;
}

void TestColorPicker::refusedHues()
{
    QFETCH(double, hue);
    TavikColorPicker picker(60, 60);
    picker.setCurrentColor(Qt::red);
    picker.setCurrentHue(hue);
    QTEST(picker.currentHue(), "whole");
    QCOMPARE(Support::picture(&picker).pixelColor(20, 20), QColor(Qt::black)); // and no warning

    expectWarning(refused);
    QSignalSpy changed(&picker, &TavikColorPicker::colorChanged);
    picker.updateSelectedColor(10, 10);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first().first().value<QColor>(), QColor(Qt::red));
}

void TestColorPicker::picks_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<bool>("isAccepted");
    QTest::addColumn<double>("saturation");
    QTest::addColumn<double>("value");
    QTest::newRow("upper left") << QPoint(0, 0) << true << 0.0 << 1.0;
    QTest::newRow("middle") << QPoint(50, 20) << true << 0.5 << 0.6;
    QTest::newRow("last pixel") << QPoint(99, 49) << true << 0.99 << 0.02;
    QTest::newRow("one past the last") << QPoint(100, 50) << true << 1.0 << 0.0;
    QTest::newRow("right of it") << QPoint(101, 10) << false << 0.0 << 0.0;
    QTest::newRow("below it") << QPoint(10, 51) << false << 0.0 << 0.0;
    QTest::newRow("left of it") << QPoint(-1, 10) << false << 0.0 << 0.0;
    QTest::newRow("far off") << QPoint(10, INT_MIN) << false << 0.0 << 0.0;
}

void TestColorPicker::picks()
{
    QFETCH(QPoint, point);
    QFETCH(bool, isAccepted);
    QFETCH(double, saturation);
    QFETCH(double, value);
    TavikColorPicker picker(102, 52);
    const QColor before(1, 2, 3, 4);
    picker.setCurrentColor(before);
    picker.setCurrentHue(0.25);
    QSignalSpy changed(&picker, &TavikColorPicker::colorChanged);
    picker.updateSelectedColor(point.x(), point.y());
    picker.updateSelectedColor(point.x(), point.y());
    QCOMPARE(changed.size(), isAccepted ? 2 : 0);
    const QColor picked = QColor::fromHsvF(0.25, saturation, value, 1.0);
    QCOMPARE(picker.currentColor(), isAccepted ? picked : before);
    if (isAccepted)
        QCOMPARE(changed.last().first().value<QColor>(), picked);
}

void TestColorPicker::drag()
{
    TavikColorPicker picker(102, 52);
    int emissions = 0;
    connect(&picker, &TavikColorPicker::colorChanged, this, [&] { ++emissions; });
    const auto taken = [&] { return std::exchange(emissions, 0); };

    Support::press(&picker, {10, 10}, Qt::RightButton);
    Support::drag(&picker, {20, 20}, Qt::RightButton);
    QCOMPARE(taken(), 0);
    Support::press(&picker, {101, 10}); // outside: nothing is picked, but the drag has begun
    QCOMPARE(taken(), 0);
    Support::drag(&picker, {20, 20});
    Support::drag(&picker, {20, 20});
    QCOMPARE(taken(), 2);
    Support::drag(&picker, {20, -1});
    QCOMPARE(taken(), 0);
    QCOMPARE(picker.currentColor(), QColor::fromHsvF(0, 0.2, 0.6));
    Support::drag(&picker, {30, 20});
    QCOMPARE(taken(), 1);
    Support::release(&picker, {30, 20}, Qt::RightButton);
    Support::drag(&picker, {40, 20});
    QCOMPARE(taken(), 0);
}

void TestColorPicker::settersAreSilent()
{
    TavikColorPicker picker(102, 52);
    QVERIFY(!picker.currentColor().isValid());
    Support::PaintCounter paints(&picker);
    QSignalSpy changed(&picker, &TavikColorPicker::colorChanged);
    picker.setCurrentColor(Qt::green);
    QCOMPARE(paints.take(), 0);
    picker.setCurrentHue(1.0);
    QCOMPARE(paints.take(), 1);
    QCOMPARE(changed.size(), 0);
    QCOMPARE(picker.currentHue(), 1);
    picker.setCurrentHue(0.999);
    QCOMPARE(picker.currentHue(), 0);
    picker.setCurrentHue(-1.0);
    QCOMPARE(picker.currentHue(), -1);
    QCOMPARE(picker.currentColor(), QColor(Qt::green));
    paints.take();
    picker.updateSelectedColor(1, 1);
    QCOMPARE(paints.take(), 1);
    QCOMPARE(picker.currentColor().hueF(), -1.0);
}

void TestColorPicker::circleStandsOut()
{
    TavikColorPicker picker(102, 102);
    picker.setCurrentHue(-1.0);
    for (const double value : {0.4, 0.49, 0.51, 0.6}) {
        picker.setCurrentColor(QColor::fromHsvF(-1.0, 0.5, value));
        const QImage picture = Support::picture(&picker);
        const int top = 100 - qRound(value * 100) - 5;
        const int grey = qGray(picture.pixel(50, top - 3));
        const int line = qGray(picture.pixel(50, top));
        QVERIFY2(value > 0.5 ? line < grey - 30 : line > grey + 30, qPrintable(QString::number(line)));
    }
}

void TestColorPicker::emptySquares_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::newRow("nothing") << 0 << 0;
    QTest::newRow("no square") << 2 << 2;
    QTest::newRow("no height") << 50 << 2;
    QTest::newRow("no width") << 1 << 50;
    QTest::newRow("negative") << -5 << -5;
    QTest::newRow("lowest") << INT_MIN << INT_MIN;
}

void TestColorPicker::emptySquares()
{
    QFETCH(int, width);
    QFETCH(int, height);
    allowWarning(QStringLiteral("^QWidget::setM(in|ax)imumSize: .*Negative sizes"));
    TavikColorPicker picker(width, height);
    QSignalSpy changed(&picker, &TavikColorPicker::colorChanged);
    picker.updateColors();
    for (int at = -2; at < 3; ++at)
        picker.updateSelectedColor(at, at);
    QCOMPARE(changed.size(), 0);
    QImage canvas(60, 60, QImage::Format_RGB32);
    picker.render(&canvas);
}

TAVIK_TEST_MAIN(TestColorPicker)
#include "tst_colorpicker.moc"
