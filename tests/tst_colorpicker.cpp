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
    void looksAsThePlainWay();
    void imageFollowsHue();
    void refusedHues();
    void picks();
    void drag();
    void settersAreSilent();
};

namespace {

/// Whether a picker is painted as in the plain way.
bool looksPlain(TavikColorPicker &picker, double hue)
{
    Plain::Picker plain(picker.width(), picker.height());
    plain.hue = hue;
    plain.color = picker.currentColor();
    return Support::picture(&picker) == Support::picture(&plain);
}

} // namespace

void TestColorPicker::looksAsThePlainWay()
{
    const auto verify = [](double hue, const QSize &size) {
        TavikColorPicker picker(size.width(), size.height());
        picker.setCurrentHue(hue);
        for (const double value : {-1.0, 0.49, 0.51}) {
            picker.setCurrentColor(value < 0 ? QColor() : QColor::fromHsvF(0.2, 0.75, value));
            QVERIFY2(looksPlain(picker, hue), qPrintable(QString::number(hue, 'g', 17)));
        }
    };
    for (const double hue : {0.0, -0.0, 1 / 6.0, 1 / 3.0, 0.5, 4 / 6.0, 5 / 6.0, 0.25, 0.0999999, 0.999986,
                             0.999999, 1.0, -1.0})
        verify(hue, {190, 136});
    verify(0.4321, {3, 60});
    verify(0.4321, {475, 340});
    QRandomGenerator random(5);
    for (int i = 0; i < 60; ++i)
        verify(random.generateDouble(), {random.bounded(3, 90), random.bounded(3, 90)});
}

void TestColorPicker::imageFollowsHue()
{
    TavikColorPicker picker(120, 80);
    for (const double hue : {0.3, 0.3 + 1 / 36000.0, 0.9, 0.3, -1.0, 5.0, 0.3}) {
        picker.setCurrentHue(hue);
        if (hue == 0.9)
            picker.updateColors(); // before a paint
        QVERIFY(hue == 5.0 || looksPlain(picker, hue));
    }
}

void TestColorPicker::refusedHues()
{
    expectWarning(QStringLiteral("^QColor::setHsvF: HSV parameters out of range"));
    const std::pair<double, int> rows[] = {
        {2.5, 2}, {-0.5, 0}, {1e300, INT_MAX}, {-1e300, INT_MIN}, {std::nan(""), INT_MIN}};
    for (const auto &[hue, whole] : rows) {
        TavikColorPicker picker(60, 60);
        picker.setCurrentColor(Qt::red);
        picker.setCurrentHue(hue);
        QCOMPARE(picker.currentHue(), whole);
        QCOMPARE(Support::picture(&picker).pixelColor(20, 20), QColor(Qt::black));
        const QSignalSpy changed(&picker, &TavikColorPicker::colorChanged);
        picker.updateSelectedColor(10, 10);
        QCOMPARE(changed.value(0).value(0).value<QColor>(), QColor(Qt::red));
    }
}

void TestColorPicker::picks()
{
    const struct
    {
        QPoint point;
        double saturation; // none if the point is refused
        double value;
    } rows[] = {{{0, 0}, 0.0, 1.0},  {{50, 20}, 0.5, 0.6}, {{100, 50}, 1.0, 0.0}, // one past the last pixel
                {{101, 10}, -1, -1}, {{10, 51}, -1, -1},   {{-1, 10}, -1, -1}};
    for (const auto &[point, saturation, value] : rows) {
        const bool isAccepted = saturation >= 0;
        TavikColorPicker picker(102, 52);
        const QColor before(1, 2, 3, 4);
        picker.setCurrentColor(before);
        picker.setCurrentHue(0.25);
        const QSignalSpy changed(&picker, &TavikColorPicker::colorChanged);
        picker.updateSelectedColor(point.x(), point.y());
        picker.updateSelectedColor(point.x(), point.y()); // told again
        QCOMPARE(changed.size(), isAccepted ? 2 : 0);
        QCOMPARE(picker.currentColor(), isAccepted ? QColor::fromHsvF(0.25, saturation, value) : before);
        if (isAccepted)
            QCOMPARE(changed.last().first().value<QColor>(), picker.currentColor());
    }
}

void TestColorPicker::drag()
{
    TavikColorPicker picker(102, 52);
    int emissions = 0;
    connect(&picker, &TavikColorPicker::colorChanged, this, [&] { ++emissions; });
    const auto taken = [&] { return std::exchange(emissions, 0); };

    for (const Qt::MouseButton other : {Qt::RightButton, Qt::MiddleButton}) {
        Support::press(&picker, {10, 10}, other);
        Support::drag(&picker, {20, 20}, other);
        QCOMPARE(taken(), 0);
    }
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
    Support::PaintCounter paints(&picker);
    const QSignalSpy changed(&picker, &TavikColorPicker::colorChanged);
    picker.setCurrentColor(Qt::green);
    QCOMPARE(paints.take(), 0);
    picker.setCurrentHue(1.0);
    QCOMPARE(paints.take(), 1);
    QCOMPARE(picker.currentHue(), 1);
    picker.setCurrentHue(0.999);
    QCOMPARE(picker.currentHue(), 0);
    picker.setCurrentHue(-1.0);
    QCOMPARE(changed.size(), 0);
    paints.take();
    picker.updateSelectedColor(1, 1);
    QCOMPARE(paints.take(), 1);
    QCOMPARE(picker.currentColor().hueF(), -1.0);
}

TAVIK_TEST_MAIN(TestColorPicker)
#include "tst_colorpicker.moc"
