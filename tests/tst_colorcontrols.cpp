#include "colorsupport.h"
#include "plaincolor.h"

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
    void sliderLooksAsThePlainWay_data();
    void sliderLooksAsThePlainWay();
    void sliderTypes();
    void sliderColours();
    void sliderHandlePlace_data();
    void sliderHandlePlace();
    void sliderHandleFill();
    void sliderWheel();
    void wellShowsAndSelects();
    void wellAddsColours();
    void wellPlusButton();
    void wellChangedWhileSelecting();
    void buttonColour();
    void buttonClick();
    void buttonSwatch_data();
    void buttonSwatch();
};

namespace {

const QString texturePath = QStringLiteral(":/Color/images/alpha_texture.png");
constexpr auto noType = TavikColorSilder::Type(2);

/// The first column of the handle's white inside, in its middle row.
int handleInside(TavikColorSilder &slider)
{
    const QImage picture = Support::picture(&slider);
    int x = 0;
    while (x < picture.width() && picture.pixel(x, 7) != 0xffffffff)
        ++x;
    return x;
}

/// The colour of a cell's middle.
QColor cell(const QImage &picture, int index)
{
    return picture.pixelColor(index % 8 * 23 + 9, index / 8 * 23 + 9);
}

} // namespace

void TestColorControls::sliderLooksAsThePlainWay_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("value");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QVector<QColor>>("colors");
    const QSize usual(166, 16);
    const QVector<QColor> own; // those of the type
    QTest::newRow("hue") << 0 << 0 << usual << own;
    QTest::newRow("hue at its end") << 0 << 360 << usual << own;
    QTest::newRow("alpha") << 1 << 200 << usual << own;
    QTest::newRow("alpha, large") << 1 << 13 << QSize(415, 40) << own;
    QTest::newRow("neither") << 2 << 50 << usual << own;
    QTest::newRow("three colours") << 0 << 100 << usual
                                   << QVector<QColor>{Qt::red, QColor(0, 0, 255, 50), Qt::white};
    QTest::newRow("three colours over the texture")
        << 1 << 100 << usual << QVector<QColor>{Qt::red, QColor(0, 0, 255, 50), Qt::white};
    QTest::newRow("tiny") << 1 << 100 << QSize(5, 3) << own;
}

void TestColorControls::sliderLooksAsThePlainWay()
{
    QFETCH(int, type);
    QFETCH(int, value);
    QFETCH(QSize, size);
    QFETCH(QVector<QColor>, colors);
    TavikColorSilder slider(size.width(), size.height(), TavikColorSilder::Type(type));
    if (!colors.isEmpty())
        slider.setColors(colors);
    Plain::Slider plain(size.width(), size.height());
    plain.colors = slider.colors();
    if (type == TavikColorSilder::Alpha)
        plain.texture.setTexture(QPixmap(texturePath));
    plain.setRange(slider.minimum(), slider.maximum());
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        for (QSlider *each : {static_cast<QSlider *>(&slider), static_cast<QSlider *>(&plain)}) {
            each->setOrientation(orientation);
            each->setFixedSize(size);
            each->setValue(value);
        }
        QCOMPARE(Support::picture(&slider), Support::picture(&plain));
    }
}

void TestColorControls::sliderTypes()
{
    const TavikColorSilder hue(166, 16);
    QCOMPARE(hue.maximum(), 360);
    QCOMPARE(hue.orientation(), Qt::Horizontal);
    QVector<QColor> circle;
    for (const int degrees : {0, 60, 120, 180, 240, 300})
        circle.append(QColor::fromHsv(degrees, 255, 255));
    circle.append(Qt::red);
    QCOMPARE(hue.colors(), circle);

    const TavikColorSilder alpha(166, 16, TavikColorSilder::Alpha);
    QCOMPARE(alpha.maximum(), 255);
    QCOMPARE(alpha.colors().size(), 256);
    for (int a = 0; a < 256; ++a)
        QCOMPARE(alpha.colors().at(a), QColor(0, 0, 0, a));

    const TavikColorSilder neither(166, 16, noType);
    QCOMPARE(neither.maximum(), 99);
    QVERIFY(neither.colors().isEmpty());
}

void TestColorControls::sliderColours()
{
    TavikColorSilder slider(166, 16, noType);
    QVERIFY(!slider.firstColor().isValid());
    QVERIFY(!slider.lastColor().isValid());
    QCOMPARE(slider.gradient().stops(), QLinearGradient().stops());
    QCOMPARE(slider.gradient().coordinateMode(), QGradient::StretchToDeviceMode);

    Support::PaintCounter paints(&slider);
    slider.setLastColor(Qt::green);
    QCOMPARE(slider.gradient().stops(), QGradientStops({{0, Qt::green}}));
    slider.setFirstColor(Qt::red);
    QCOMPARE(slider.colors(), QVector<QColor>{Qt::red});
    QCOMPARE(paints.take(), 1);
    QCOMPARE(Support::picture(&slider).pixelColor(80, 6), QColor(Qt::red));
    slider.setLastColor(Qt::green);
    slider.setLastColor(Qt::blue);
    QCOMPARE(slider.firstColor(), QColor(Qt::red));
    QCOMPARE(slider.lastColor(), QColor(Qt::blue));
    QCOMPARE(slider.gradient().stops(), QGradientStops({{0, Qt::red}, {0.5, Qt::green}, {1, Qt::blue}}));
    QCOMPARE(slider.gradient().finalStop(), QPointF(1, 0));
    slider.setOrientation(Qt::Vertical);
    QCOMPARE(slider.gradient().finalStop(), QPointF(0, 1));
    slider.setColors({Qt::white});
    QCOMPARE(slider.colors(), QVector<QColor>{Qt::white});
}

void TestColorControls::sliderHandlePlace_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("left");
    QTest::newRow("minimum") << 0 << 360 << 0 << 0;
    QTest::newRow("cut to 0") << 0 << 360 << 2 << 0;
    QTest::newRow("just above 1") << 0 << 360 << 3 << 1;
    QTest::newRow("maximum") << 0 << 360 << 360 << 154;
    QTest::newRow("below zero") << -10 << 10 << 5 << 115;
    QTest::newRow("no range") << 7 << 7 << 7 << 0;
    QTest::newRow("whole range") << INT_MIN << INT_MAX << INT_MAX << 154;
}

void TestColorControls::sliderHandlePlace()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, value);
    QFETCH(int, left);
    TavikColorSilder slider(166, 16);
    slider.setRange(minimum, maximum);
    slider.setValue(value);
    QCOMPARE(handleInside(slider), left + 1);
    slider.setLayoutDirection(Qt::RightToLeft);
    slider.setInvertedAppearance(true);
    slider.setOrientation(Qt::Vertical);
    slider.setFixedSize(166, 16);
    QCOMPARE(handleInside(slider), left + 1);
}

void TestColorControls::sliderHandleFill()
{
    TavikColorSilder slider(166, 16);
    slider.setRange(0, 0); // so that the mouse moves nothing
    const auto fill = [&slider] { return QString(Support::picture(&slider).pixelColor(3, 7).name()); };
    const QPoint inside(6, 13);
    const QPoint outside(6, 14);

    Support::press(&slider, inside); // before the first paint there is no handle
    QCOMPARE(fill(), QStringLiteral("#ffffff"));
    Support::press(&slider, inside, Qt::RightButton);
    QCOMPARE(fill(), QStringLiteral("#e8e8e8"));
    Support::press(&slider, outside);
    QCOMPARE(fill(), QStringLiteral("#ffffff"));
    Support::drag(&slider, inside, Qt::NoButton); // not told to a slider that does not track the mouse
    QCOMPARE(fill(), QStringLiteral("#ffffff"));
    slider.setMouseTracking(true);
    Support::drag(&slider, inside, Qt::NoButton);
    QCOMPARE(fill(), QStringLiteral("#f7f7f7"));
    Support::drag(&slider, inside, Qt::RightButton);
    QCOMPARE(fill(), QStringLiteral("#f7f7f7"));
    Support::drag(&slider, inside);
    QCOMPARE(fill(), QStringLiteral("#e8e8e8"));
    Support::drag(&slider, outside);
    QCOMPARE(fill(), QStringLiteral("#ffffff"));
    Support::drag(&slider, inside);
    Support::release(&slider, inside);
    QCOMPARE(fill(), QStringLiteral("#ffffff"));

    slider.setRange(0, 10);
    slider.setValue(10); // the handle is still tested where it was painted
    Support::drag(&slider, inside);
    slider.setValue(0);
    QCOMPARE(fill(), QStringLiteral("#e8e8e8"));
}

void TestColorControls::sliderWheel()
{
    TavikColorSilder slider(166, 16);
    slider.setValue(100);
    Support::turnWheel(&slider);
    QVERIFY(slider.value() < 100);
}

void TestColorControls::wellShowsAndSelects()
{
    const char *const start[] = {"#b60e2e", "#f3980f", "#f7c016", "#774c40", "#59da4a",
                                 "#357540", "#bd18e7", "#9c14ca", "#3981f2", "#79c1c3",
                                 "#bad576", "#030303", "#3f4244", "#919093", "#ffffff"};
    TavikColorWell well(186, 43);
    const QImage picture = Support::picture(&well);
    QSignalSpy selected(&well, &TavikColorWell::colorSelected);
    for (int i = 0; i < 15; ++i) {
        const QColor color(QLatin1String(start[i]));
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

    well.initColors(); // appended, and so out of sight
    well.initRects();
    QCOMPARE(Support::picture(&well), picture);
    well.addColor(Qt::yellow);
    QCOMPARE(cell(Support::picture(&well), 0), QColor(Qt::yellow));
}

void TestColorControls::wellPlusButton()
{
    TavikColorWell well(186, 43);
    auto *plus = well.findChild<TavikButton *>();
    QCOMPARE(plus->geometry(), QRect(162, 24, 16, 16));
    QCOMPARE(plus->icon().isNull(), false);
    const QImage picture = Support::picture(&well);
    QCOMPARE(picture.pixelColor(165, 27), QColor(Qt::white));
    QCOMPARE(picture.pixelColor(162, 24), QColor("#d3d3d3")); // a square corner
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
    TavikColorButton button(QColor(1, 2, 3, 4));
    QCOMPARE(button.currentColor(), QColor(1, 2, 3, 4));
    QCOMPARE(TavikColorButton().currentColor(), QColor(Qt::white));
    QSignalSpy changed(&button, &TavikColorButton::colorChanged);
    Support::PaintCounter paints(&button);
    button.setCurrentColor(Qt::red);
    QCOMPARE(paints.take(), 1);
    button.setCurrentColor(Qt::red);
    button.setCurrentColor(QColor());
    QCOMPARE(changed.size(), 3);
    QCOMPARE(changed.at(1).first().value<QColor>(), QColor(Qt::red));
    QVERIFY(!changed.at(2).first().value<QColor>().isValid());
    QCOMPARE(button.metaObject()->indexOfMethod("setCurrentColor(QColor)"), -1);
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

void TestColorControls::buttonSwatch_data()
{
    QTest::addColumn<int>("rem");
    QTest::addColumn<bool>("isEnabled");
    QTest::addColumn<QRect>("swatch"); // outline and all, in a button of 100 by 40 pixels
    QTest::newRow("12") << 12 << true << QRect(QPoint(10, 5), QPoint(89, 34));
    QTest::newRow("10") << 10 << true << QRect(QPoint(8, 4), QPoint(91, 35));
    QTest::newRow("30") << 30 << true << QRect(QPoint(25, 13), QPoint(74, 26));
    QTest::newRow("disabled") << 12 << false << QRect(QPoint(10, 5), QPoint(89, 34));
}

void TestColorControls::buttonSwatch()
{
    QFETCH(int, rem);
    QFETCH(bool, isEnabled);
    QFETCH(QRect, swatch);
    LenConverter::m_rem = rem;
    TavikColorButton button(Qt::red);
    button.setFixedSize(100, 40);
    button.setEnabled(isEnabled);
    const QImage picture = Support::picture(&button);
    const QRgb outline = 0xffd3d3d3;
    const QRgb around = isEnabled ? 0xffffffff : 0xffe0e0e0;
    const QPoint inwards(1, 1);
    for (const QPoint &corner : {swatch.topLeft(), swatch.bottomRight()}) {
        const QPoint step = corner == swatch.topLeft() ? inwards : -inwards;
        QCOMPARE(picture.pixel(corner), outline);
        QCOMPARE(picture.pixel(corner + step), 0xffff0000);
        QCOMPARE(picture.pixel(corner - QPoint(step.x(), 0)), around);
        QCOMPARE(picture.pixel(corner - QPoint(0, step.y())), around);
    }

    button.setCurrentColor(QColor(255, 0, 0, 128));
    const QSet<QRgb> tones = Support::tones(Support::picture(&button), QRect(30, 20, 40, 1));
    QCOMPARE(tones.size(), 2);
    QVERIFY(!tones.contains(0xffff0000));

    button.setFixedSize(100 - swatch.width(), 40); // all margins
    QCOMPARE(Support::picture(&button).pixel(button.width() / 2, 20), around);
}

TAVIK_TEST_MAIN(TestColorControls)
#include "tst_colorcontrols.moc"
