#include "colorsupport.h"

#include <Tavik/TavikButton>
#include <Tavik/TavikColorButton>
#include <Tavik/TavikColorSilder>
#include <Tavik/TavikColorWell>

#include <climits>

/// The colour slider, the palette and the colour button.
class TestColorControls : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sliderLooks();
    void sliderColours();
    void sliderHandlePlace();
    void sliderHandleFill();
    void wellShowsAndSelects();
    void wellAddsColours();
    void wellPlusButton();
    void wellChangedWhileSelecting();
    void buttonColour();
    void buttonClick();
    void buttonSwatch();
};

namespace {

/// The first and the last column of the handle's white inside, in its middle row.
std::pair<int, int> handleInside(TavikColorSilder &slider)
{
    const QImage picture = Support::picture(&slider);
    int first = 0;
    while (first < picture.width() && picture.pixel(first, 7) != 0xffffffff)
        ++first;
    int last = first;
    while (last < picture.width() && picture.pixel(last, 7) == 0xffffffff)
        ++last;
    return {first, last - 1};
}

/// The colour of a cell's middle.
QColor cell(const QImage &picture, int index)
{
    return picture.pixelColor(index % 8 * 23 + 9, index / 8 * 23 + 9);
}

} // namespace

void TestColorControls::sliderLooks()
{
    TavikColorSilder slider(166, 16);
    slider.setColors({Qt::red, Qt::blue});
    const auto isRedBy = [&](double share, int x, int y) {
        return qAbs(Support::picture(&slider).pixelColor(x, y).red() - 255 * share) < 3;
    };
    QVERIFY(isRedBy(0.75, 41, 8) && isRedBy(0.1, 149, 8)); // the gradient of the whole widget
    slider.setOrientation(Qt::Vertical);
    slider.setFixedSize(166, 16);
    QVERIFY(isRedBy(0.66, 41, 5) && isRedBy(0.66, 149, 5));
    slider.setColors({Qt::white, Qt::white});
    const QImage picture = Support::picture(&slider);
    QCOMPARE(picture.pixelColor(80, 3), QColor("#a0a0a0")); // #404040 at half strength
    QVERIFY(picture.pixelColor(80, 10) != QColor(Qt::white));
    QVERIFY(picture.pixelColor(157, 6) != QColor(Qt::white));
    QCOMPARE(picture.pixelColor(156, 9), QColor(Qt::white));
    TavikColorSilder alpha(166, 16, TavikColorSilder::Alpha);
    QCOMPARE(Support::tones(Support::picture(&alpha), QRect(40, 4, 1, 5)).size(), 2); // the checkerboard
}

void TestColorControls::sliderColours()
{
    const TavikColorSilder hue(166, 16);
    QCOMPARE(hue.maximum(), 360);
    for (int sixth = 0; sixth <= 6; ++sixth)
        QCOMPARE(hue.colors().value(sixth).rgb(), QColor::fromHsv(sixth % 6 * 60, 255, 255).rgb());
    const TavikColorSilder alpha(166, 16, TavikColorSilder::Alpha);
    QCOMPARE(alpha.maximum(), 255);
    for (int a = 0; a < 256; ++a)
        QCOMPARE(alpha.colors().value(a), QColor(0, 0, 0, a));

    TavikColorSilder slider(166, 16, TavikColorSilder::Type(2));
    QCOMPARE(slider.maximum(), 99);
    QVERIFY(!slider.firstColor().isValid());
    QVERIFY(!slider.lastColor().isValid());
    Support::PaintCounter paints(&slider);
    slider.setLastColor(Qt::green);
    QCOMPARE(slider.gradient().stops(), QGradientStops({{0, Qt::green}}));
    QCOMPARE(paints.take(), 1);
    slider.setFirstColor(Qt::red);
    QCOMPARE(slider.colors(), QVector<QColor>{Qt::red});
    QCOMPARE(paints.take(), 1);
    slider.setLastColor(Qt::green);
    slider.setLastColor(Qt::blue);
    QCOMPARE(slider.firstColor(), QColor(Qt::red));
    QCOMPARE(slider.lastColor(), QColor(Qt::blue));
    QCOMPARE(slider.gradient().stops(), QGradientStops({{0, Qt::red}, {0.5, Qt::green}, {1, Qt::blue}}));
}

void TestColorControls::sliderHandlePlace()
{
    const struct
    {
        int minimum;
        int maximum;
        int value;
        int left;
    } rows[] = {{0, 360, 2, 0}, // cut
                {0, 360, 3, 1},
                {-10, 10, 5, 115},
                {7, 7, 7, 0},
                {INT_MIN, INT_MAX, INT_MAX, 154}};
    for (const auto &row : rows) {
        TavikColorSilder slider(166, 16);
        slider.setRange(row.minimum, row.maximum);
        slider.setValue(row.value);
        QCOMPARE(handleInside(slider), std::make_pair(row.left + 1, row.left + 6));
        slider.setLayoutDirection(Qt::RightToLeft);
        slider.setInvertedAppearance(true);
        QCOMPARE(handleInside(slider), std::make_pair(row.left + 1, row.left + 6));
    }
}

void TestColorControls::sliderHandleFill()
{
    TavikColorSilder slider(166, 16);
    slider.setRange(0, 0); // so that the mouse moves nothing
    slider.setMouseTracking(true);
    const auto fillAfter = [&slider](QEvent::Type type, const QPoint &pos, Qt::MouseButton button) {
        Support::mouse(&slider, type, pos, button);
        return Support::picture(&slider).pixel(3, 7);
    };
    const QPoint inside(6, 13);
    const QPoint outside(6, 14);
    const QRgb normal = 0xffffffff;
    const QRgb hovered = 0xfff7f7f7;
    const QRgb pressed = 0xffe8e8e8;
    // Before the first paint there is no handle.
    QCOMPARE(fillAfter(QEvent::MouseButtonPress, inside, Qt::LeftButton), normal);
    QCOMPARE(fillAfter(QEvent::MouseButtonPress, inside, Qt::RightButton), pressed);
    QCOMPARE(fillAfter(QEvent::MouseButtonPress, outside, Qt::LeftButton), normal);
    QCOMPARE(fillAfter(QEvent::MouseMove, inside, Qt::NoButton), hovered);
    QCOMPARE(fillAfter(QEvent::MouseMove, inside, Qt::RightButton), hovered);
    QCOMPARE(fillAfter(QEvent::MouseMove, inside, Qt::LeftButton), pressed);
    QCOMPARE(fillAfter(QEvent::MouseMove, outside, Qt::LeftButton), normal);
    Support::drag(&slider, inside);
    QCOMPARE(fillAfter(QEvent::MouseButtonRelease, inside, Qt::LeftButton), normal);

    slider.setRange(0, 10);
    Support::press(&slider, {150, 8});
    QCOMPARE(slider.value(), 10);
    Support::release(&slider, {150, 8}); // the handle is still tested where it was painted
    Support::drag(&slider, inside);
    slider.setValue(0);
    QCOMPARE(Support::picture(&slider).pixel(3, 7), pressed);
}

void TestColorControls::wellShowsAndSelects()
{
    const QString start = QStringLiteral("#b60e2e#f3980f#f7c016#774c40#59da4a#357540#bd18e7#9c14ca"
                                         "#3981f2#79c1c3#bad576#030303#3f4244#919093#ffffff");
    TavikColorWell well(186, 43);
    const QImage picture = Support::picture(&well);
    QSignalSpy selected(&well, &TavikColorWell::colorSelected);
    for (int i = 0; i < 15; ++i) {
        const QColor color(start.mid(7 * i, 7));
        QCOMPARE(cell(picture, i), color);
        const QPoint corner(i % 8 * 23 + 1, i / 8 * 23 + 1);
        Support::press(&well, corner, i % 2 != 0 ? Qt::RightButton : Qt::LeftButton);
        Support::press(&well, corner + QPoint(15, 15));
        QCOMPARE(selected.size(), 2);
        QCOMPARE(selected.takeFirst().first().value<QColor>(), color);
        QCOMPARE(selected.takeFirst().first().value<QColor>(), color);
        Support::press(&well, corner - QPoint(1, 0));
        Support::press(&well, corner + QPoint(0, 16));
        QCOMPARE(selected.size(), 0);
    }
    Support::press(&well, {170, 30}); // the plus button's place, as if it were not there
    QCOMPARE(selected.size(), 0);
}

void TestColorControls::wellAddsColours()
{
    TavikColorWell well(186, 43);
    QSignalSpy selected(&well, &TavikColorWell::colorSelected);
    Support::PaintCounter paints(&well);
    well.addColor(Qt::red);
    QCOMPARE(paints.take(), 1);
    QImage picture = Support::picture(&well);
    QCOMPARE(cell(picture, 0), QColor(Qt::red));
    QCOMPARE(cell(picture, 1), QColor("#b60e2e"));
    QCOMPARE(cell(picture, 14), QColor("#919093"));
    QCOMPARE(selected.size(), 0);

    for (int i = 0; i < 14; ++i)
        well.addColor(QColor(0, 0, i));
    QCOMPARE(cell(Support::picture(&well), 14), QColor(Qt::red));
    well.addColor(QColor());
    well.addColor(Qt::transparent);
    picture = Support::picture(&well);
    QCOMPARE(cell(picture, 1), QColor(Qt::black));
    QCOMPARE(Support::tones(picture, QRect(3, 9, 12, 1)).size(), 2); // the checkerboard
}

void TestColorControls::wellPlusButton()
{
    TavikColorWell well(186, 43);
    auto *plus = well.findChild<TavikButton *>();
    QCOMPARE(plus->geometry(), QRect(162, 24, 16, 16));
    QCOMPARE(plus->icon().isNull(), false);
    QCOMPARE(Support::picture(&well).pixelColor(162, 24), QColor("#d3d3d3")); // a square corner
    QSignalSpy requested(&well, &TavikColorWell::addColorRequested);
    plus->click();
    QCOMPARE(requested.size(), 1);
}

void TestColorControls::wellChangedWhileSelecting()
{
    TavikColorWell well(186, 43);
    QVector<QColor> told;
    connect(&well, &TavikColorWell::colorSelected, &well, [&well] { well.addColor(Qt::red); });
    connect(&well, &TavikColorWell::colorSelected, &well, [&](const QColor &color) { told.append(color); });
    Support::press(&well, {24 + 5, 5});
    QCOMPARE(told, QVector<QColor>{QColor("#f3980f")});
}

void TestColorControls::buttonColour()
{
    QCOMPARE(TavikColorButton().currentColor(), QColor(Qt::white));
    TavikColorButton button(QColor(1, 2, 3, 4));
    QSignalSpy changed(&button, &TavikColorButton::colorChanged);
    Support::PaintCounter paints(&button);
    button.setCurrentColor(Qt::red);
    QCOMPARE(paints.take(), 1);
    button.setCurrentColor(Qt::red); // told again
    QCOMPARE(changed.size(), 2);
    QCOMPARE(changed.at(0).first().value<QColor>(), QColor(Qt::red));
}

void TestColorControls::buttonClick()
{
    QWidget window;
    window.move(30, 40);
    TavikColorButton button(Qt::red, &window);
    button.setRemSize(5, 2);
    button.move(100, 200);
    QSignalSpy asked(&button, &TavikColorButton::showPopup);
    QSignalSpy changed(&button, &TavikColorButton::colorChanged);
    button.click();
    QCOMPARE(asked.size(), 1);
    QCOMPARE(asked.first().first().toPoint(), button.mapToGlobal(QPoint(29, 11)));
    QCOMPARE(asked.first().last().value<QColor>(), QColor(Qt::red));
    QCOMPARE(changed.size(), 0);
    button.setEnabled(false);
    button.click();
    QCOMPARE(asked.size(), 1);
}

void TestColorControls::buttonSwatch()
{
    const struct
    {
        int rem;
        bool isEnabled;
        QRect swatch; // outline and all, in a button of 100 by 40 pixels
    } rows[] = {{12, true, QRect(QPoint(10, 5), QPoint(89, 34))},
                {10, true, QRect(QPoint(8, 4), QPoint(91, 35))},
                {30, false, QRect(QPoint(25, 13), QPoint(74, 26))}};
    for (const auto &[rem, isEnabled, swatch] : rows) {
        LenConverter::m_rem = rem;
        TavikColorButton button(Qt::red);
        button.setFixedSize(100, 40);
        button.setEnabled(isEnabled);
        const QRgb around = isEnabled ? 0xffffffff : 0xffe0e0e0;
        const QImage picture = Support::picture(&button);
        const std::pair<QPoint, QPoint> edges[] = {{{swatch.left(), 20}, {-1, 0}},
                                                   {{swatch.right(), 20}, {1, 0}},
                                                   {{50, swatch.top()}, {0, -1}},
                                                   {{50, swatch.bottom()}, {0, 1}}};
        for (const auto &[edge, outwards] : edges) {
            QCOMPARE(picture.pixel(edge + outwards), around);
            QCOMPARE(picture.pixelColor(edge), QColor("#d3d3d3"));
            QCOMPARE(picture.pixelColor(edge - outwards), QColor(Qt::red));
        }

        button.setCurrentColor(QColor(255, 0, 0, 128));
        const QSet<QRgb> tones = Support::tones(Support::picture(&button), QRect(30, 20, 40, 1));
        QCOMPARE(tones.size(), 2);
        QVERIFY(!tones.contains(0xffff0000));

        button.setFixedSize(100 - swatch.width(), 40); // all margins
        QCOMPARE(Support::picture(&button).pixel(button.width() / 2, 20), around);
    }
}

TAVIK_TEST_MAIN(TestColorControls)
#include "tst_colorcontrols.moc"
