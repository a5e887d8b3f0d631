#include "colorsupport.h"

#include <Tavik/LenConverter>
#include <Tavik/TavikGradientBar>

#include <climits>

/// The gradient bar, 200 by 24 pixels unless told otherwise: start square 1,1 to 22,22, bar 34,3 to 159,20,
/// end square 170,0 to 191,21, and handles of 11 by 22.
class TestColorGradient : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sizes();
    void colours();
    void coloursSet();
    void presses();
    void drags();
    void handlesMoveWhenPainted();
    void looks();
};

namespace {

/// How often a bar said what.
struct Emissions
{
    explicit Emissions(TavikGradientBar *sender)
        : bar(sender)
    {
    }

    TavikGradientBar *bar;
    QSignalSpy startColor{bar, &TavikGradientBar::selectedStartColor};
    QSignalSpy endColor{bar, &TavikGradientBar::selectedEndColor};
    QSignalSpy request{bar, &TavikGradientBar::colorPopupRequest};
};

QColor argument(const QSignalSpy &spy)
{
    return spy.isEmpty() ? QColor() : spy.last().last().value<QColor>();
}

} // namespace

void TestColorGradient::sizes()
{
    LenConverter::m_rem = 10;
    QCOMPARE(TavikGradientBar(200, 24).size(), QSize(200, 24));
    QCOMPARE(TavikGradientBar(20.55, 2.4).size(), QSize(206, 24));
    QCOMPARE(TavikGradientBar(20.5, 2).size(), QSize(205, 20));
    QCOMPARE(TavikGradientBar(20, 2.5).size(), QSize(200, 25));
    QCOMPARE(TavikGradientBar().size(), QSize(167, 20));
}

void TestColorGradient::colours()
{
    const auto colour = [](const QColor &start, const QColor &end, int value) {
        TavikGradientBar bar(200, 24);
        bar.setStartColor(start);
        bar.setEndColor(end);
        return bar.colorAt(value);
    };
    const QColor from(10, 200, 0, 255);
    const QColor to(20, 100, 255, 0);
    QCOMPARE(colour(from, to, 0), from);
    QCOMPARE(colour(from, to, 33), QColor(13, 167, 84, 170)); // cut
    QCOMPARE(colour(from, to, 100), to);
    const QColor grey(100, 100, 100);
    QCOMPARE(colour(grey, QColor(110, 90, 100), 300), QColor(130, 70, 100)); // still in reach
    QCOMPARE(colour(grey, QColor(110, 90, 100), -100), QColor(90, 110, 100));
}

void TestColorGradient::coloursSet()
{
    TavikGradientBar bar(200, 24);
    Emissions emissions(&bar);
    Support::PaintCounter paints(&bar);
    bar.setStartColor(Qt::red);
    QCOMPARE(paints.take(), 1);
    QCOMPARE(argument(emissions.startColor), QColor(127, 0, 0));
    bar.setEndColor(Qt::blue);
    QCOMPARE(paints.take(), 1);
    QCOMPARE(argument(emissions.endColor), QColor(Qt::blue));
    bar.setEndColor(Qt::blue); // told again
    QCOMPARE(emissions.endColor.size(), 2);
    const QSignalSpy told(&bar, &TavikGradientBar::endValueChanged);
    bar.setStartValue(500);
    bar.setEndValue(-3);
    QCOMPARE(bar.startValue(), 500);
    QCOMPARE(told.count(), 0);
}

void TestColorGradient::presses()
{
    QWidget window;
    TavikGradientBar bar(200, 24, &window);
    bar.move(40, 50);
    Support::picture(&bar);
    Emissions emissions(&bar);
    auto seen = TavikGradientBar::StartSide;
    connect(&bar, &TavikGradientBar::colorPopupRequest, this, [&] { seen = bar.selectedSide(); });
    const auto requests = [&](const QPoint &point, Qt::MouseButton button = Qt::LeftButton) {
        emissions.request.clear();
        Support::press(&bar, point, button);
        Support::release(&bar, point, button);
        return emissions.request.size();
    };
    QCOMPARE(requests({170, 0}), 1); // the end square's first and last pixels
    QCOMPARE(seen, TavikGradientBar::EndSide);
    QCOMPARE(requests({191, 21}, Qt::MiddleButton), 1);
    QCOMPARE(emissions.request.last().first().toPoint(), bar.mapToGlobal(QPoint(180, 21)));
    QCOMPARE(argument(emissions.request), QColor(Qt::black));
    QCOMPARE(requests({1, 1}), 1); // the start square's
    QCOMPARE(seen, TavikGradientBar::StartSide);
    QCOMPARE(requests({22, 22}, Qt::MiddleButton), 1);
    QCOMPARE(emissions.request.last().first().toPoint(), bar.mapToGlobal(QPoint(11, 22)));
    QCOMPARE(argument(emissions.request), QColor(Qt::white));
    for (const QPoint &beside : {QPoint(23, 10), QPoint(180, 22), QPoint(98, 10)})
        QCOMPARE(requests(beside), 0);
}

void TestColorGradient::drags()
{
    const int startHandle = 98; // at a value of 50
    const int endHandle = 161;  // at 100
    const struct
    {
        int pressed;
        QVector<int> moves;
        int start;
        int end;
        int accepted;
    } rows[] = {
        {startHandle, {96}, 49, 100, 1},
        {startHandle, {33}, 0, 100, 1},      // just left of the bar
        {startHandle, {60, 32}, 20, 100, 1}, // left of the bar
        {startHandle, {159, 160, 161}, 99, 100, 1},
        {endHandle, {150, 162, 190}, 50, 92, 1},
        {endHandle, {150, 160}, 50, 100, 2},
        {endHandle, {99, 98, 97}, 50, 51, 1},
        {60, {70, 80}, 50, 100, 0}, // no handle
        {startHandle, {INT_MAX, INT_MIN}, 50, 100, 0},
    };
    for (const auto &row : rows) {
        TavikGradientBar bar(200, 24);
        Support::picture(&bar);
        Emissions emissions(&bar);
        Support::press(&bar, {row.pressed, 12}, Qt::RightButton);
        for (const int x : row.moves)
            Support::drag(&bar, {x, 500}, Qt::RightButton);
        QCOMPARE(bar.startValue(), row.start);
        QCOMPARE(bar.endValue(), row.end);
        if (!emissions.startColor.isEmpty())
            QCOMPARE(argument(emissions.startColor), bar.colorAt(bar.startValue()));
        if (!emissions.endColor.isEmpty())
            QCOMPARE(argument(emissions.endColor), bar.colorAt(bar.endValue()));
        Support::PaintCounter paints(&bar);
        Support::release(&bar, {0, 0});
        QCOMPARE(paints.take(), 1);
        Support::drag(&bar, {100, 12});
        QCOMPARE(emissions.startColor.size() + emissions.endColor.size(), row.accepted);
        QCOMPARE(emissions.request.size(), 0);
    }
    TavikGradientBar bar(200, 24);
    Support::PaintCounter paints(&bar);
    for (const auto &[handle, to] : {std::pair(startHandle, 60), std::pair(endHandle, 150)}) {
        Support::press(&bar, {handle, 12});
        QCOMPARE(paints.take(), 0);
        Support::drag(&bar, {to, 12});
        QCOMPARE(paints.take(), 1);
    }
}

void TestColorGradient::handlesMoveWhenPainted()
{
    TavikGradientBar bar(200, 24);
    Emissions emissions(&bar);
    Support::press(&bar, {5, 5}); // both handles lie over the start square until the first paint
    Support::drag(&bar, {60, 5});
    QCOMPARE(emissions.request.size(), 0);
    QCOMPARE(bar.startValue(), 20);
    Support::release(&bar, {60, 5});

    QSignalSpy told(&bar, &TavikGradientBar::startValueChanged);
    bar.setStartValue(50);
    Support::picture(&bar);
    bar.setStartValue(10);
    QCOMPARE(told.count(), 0);
    Support::press(&bar, {103, 12}); // where it was painted
    Support::drag(&bar, {60, 12});
    QCOMPARE(bar.startValue(), 20);
    Support::release(&bar, {60, 12});

    bar.setEndValue(21); // the two overlap: the lower one is dragged
    Support::picture(&bar);
    Support::press(&bar, {62, 12});
    Support::drag(&bar, {40, 12});
    QCOMPARE(bar.startValue(), 4);
    QCOMPARE(bar.endValue(), 21);

    // The order of the arithmetic shows where a product misses a whole number by a hair.
    TavikGradientBar hundred(174, 24);
    Support::picture(&hundred);
    Support::press(&hundred, {85, 12});
    Support::drag(&hundred, {34 + 29, 12});
    QCOMPARE(hundred.startValue(), 28);
}

void TestColorGradient::looks()
{
    TavikGradientBar bar(200, 24);
    bar.setStartColor(QColor(200, 0, 0));
    bar.setEndColor(QColor(0, 0, 200));
    Support::picture(&bar);
    Support::press(&bar, {98, 12});
    const QImage picture = Support::picture(&bar);
    const QColor line("#d3d3d3");
    const QColor white(Qt::white);
    const QColor pressed("#e8e8e8");
    const struct
    {
        int x;
        int y;
        QColor color;
    } points[] = {
        {1, 1, line},    {2, 2, white},       {23, 23, line}, // start square, and the square in it
        {3, 3, line},    {4, 4, {200, 0, 0}}, {20, 20, {200, 0, 0}},  {170, 0, line},
        {171, 1, white}, {192, 22, line},     {180, 10, {0, 0, 200}},                  // end square
        {34, 3, line},   {150, 21, line},                                              // bar
        {93, 1, line},   {94, 2, pressed},    {103, 22, pressed},     {104, 23, line}, // start handle
        {156, 1, line},  {157, 2, white},     {167, 23, line},                         // end handle
    };
    for (const auto &point : points)
        QCOMPARE(picture.pixelColor(point.x, point.y), point.color);
    for (const int x : {40, 80, 120, 150}) // the gradient of the whole widget
        QVERIFY(qAbs(picture.pixelColor(x, 10).red() - (200 - x)) <= 2);

    bar.setStartColor(Qt::transparent);
    bar.setEndColor(Qt::transparent);
    const QImage through = Support::picture(&bar);
    for (const int left : {5, 60, 174})
        QCOMPARE(Support::tones(through, QRect(left, 10, 14, 1)).size(), 2); // the checkerboard
}

TAVIK_TEST_MAIN(TestColorGradient)
#include "tst_colorgradient.moc"
