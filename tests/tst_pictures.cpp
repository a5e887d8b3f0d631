#include "support.h"

#include <Tavik/IconTool>

#include <QImageReader>

class TestPictures : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void reachableBeforeTheApplication();
    void drawing_data();
    void drawing();
    void storedAsTheyAre();
    void pressedIsHovered();
    void alphaTexture();
    void iconStates();
};

// Read before main(), and so before any application object.
static const bool wereThereAtLoad = QFile::exists(QStringLiteral(":/Check/images/check.svg"));

void TestPictures::reachableBeforeTheApplication()
{
    QVERIFY(wereThereAtLoad);
}

namespace {

/// A place in a drawing, as fractions of its width and height, and the colour there.
struct Probe
{
    double x;
    double y;
    QColor colour;
};
using Probes = QVector<Probe>;

const QColor none = Qt::transparent;

} // namespace

Q_DECLARE_METATYPE(Probes)

void TestPictures::drawing_data()
{
    QTest::addColumn<Probes>("probes");

    const auto add = [](const char *path, const Probes &probes) { QTest::newRow(path) << probes; };
    // An outline is probed on its upper edge and beside it, a mark where it must and must not be.
    const auto box = [](const char *colour) {
        return Probes{{0.5, 0.042, QColor(colour)}, {0.042, 0.5, QColor(colour)}, {0.5, 0.15, none}};
    };
    add("Check/images/uncheck", box("#BFBFBF") + Probes{{0.44, 0.69, none}});
    add("Check/images/uncheck_hover", box("#08A274") + Probes{{0.44, 0.69, none}});
    add("Check/images/check", box("#08A274") + Probes{{0.43, 0.69, QColor("#08A274")}});

    const auto ring = [](const char *colour, const QColor &centre) {
        return Probes{{0.5, 0.1, QColor(colour)}, {0.9, 0.5, QColor(colour)}, {0.5, 0.04, none},
                      {0.5, 0.2, none},           {0.5, 0.5, centre},         {0.5, 0.7, centre}};
    };
    add("Radio/images/radio_unchecked", ring("#BFBFBF", none));
    add("Radio/images/radio_unchecked_hover", ring("#13B585", none));
    add("Radio/images/radio_unchecked_press", ring("#138765", none));
    add("Radio/images/radio_checked", ring("#08A274", "#08A274"));

    const auto chevron = [](const char *colour, bool up) {
        const double tip = up ? 0.28 : 0.72;
        const double open = 1 - tip;
        return Probes{{0.5, tip, QColor(colour)},
                      {0.5, open, none},
                      {0.06, open, QColor(colour)},
                      {0.94, open, QColor(colour)},
                      {0.06, tip, none}};
    };
    add("SpinboxArrow/images/arrow_up", chevron("#FFFFFF", true));
    add("SpinboxArrow/images/arrow_down", chevron("#FFFFFF", false));
    add("SpinboxArrow/images/arrow_up_disabled", chevron("#E4E4E4", true));
    add("SpinboxArrow/images/arrow_down_disabled", chevron("#E4E4E4", false));

    add("Expandable/images/expanded",
        {{0.5, 0.65, "#333333"}, {0.25, 0.36, "#333333"}, {0.75, 0.36, "#333333"}, {0.25, 0.65, none}});
    add("Expandable/images/unexpanded",
        {{0.35, 0.5, "#2c2c2c"}, {0.64, 0.25, "#2c2c2c"}, {0.64, 0.75, "#2c2c2c"}, {0.35, 0.25, none}});
    add("SeperateLine/images/seperate_line", {{0.01, 0.5, none}, {0.52, 0.5, "#e5e5e5"}});

    add("Color/images/color_picker",
        {{0.8, 0.2, "#666666"}, {0.5, 0.9, none}, {0.2, 0.2, none}, {0.12, 0.88, "#666666"}});
    add("Color/images/plus",
        {{0.5, 0.5, "#A3A3A3"}, {0.5, 0.2, "#A3A3A3"}, {0.2, 0.5, "#A3A3A3"}, {0.3, 0.3, none}});
    add("Color/images/refresh", {{0.13, 0.5, "#A3A3A3"}, {0.5, 0.87, "#A3A3A3"}, {0.5, 0.5, none}});

    const auto swatch = [](const char *border, const Probes &fill) {
        return Probes{{0.5, 0.042, QColor(border)}, {0.042, 0.5, QColor(border)}} + fill;
    };
    add("Color/images/color", swatch("#D3D3D3", {{0.5, 0.5, "#5C605F"}}));
    add("Color/images/color_hover", swatch("#07825C", {{0.5, 0.5, "#08A275"}}));
    add("Color/images/gradient", swatch("#D3D3D3", {{0.92, 0.08, "#FFFFFF"}, {0.08, 0.92, "#5C605F"}}));
    add("Color/images/gradient_hover",
        swatch("#07825C", {{0.92, 0.08, "#FFFFFF"}, {0.08, 0.92, "#08A275"}}));
    add("Color/images/radial_gradient",
        swatch("#D3D3D3", {{0.5, 0.5, "#FBFDFA"}, {0.08, 0.92, "#6F7272"}}));
    add("Color/images/radial_gradient_hover",
        swatch("#07825C", {{0.5, 0.5, "#FBFDFA"}, {0.08, 0.92, "#08A274"}}));

    add("Button/images/delete", {{0.5, 0.08, "#FC5B56"}, {0.5, 0.5, none}, {0.01, 0.01, none}});
    add("Button/images/delete_grey", {{0.5, 0.08, "#EAEAEA"}, {0.5, 0.5, "#8C8C8C"}, {0.01, 0.01, none}});
    add("Slider/images/circle", {{0.5, 0.5, "#8a8a8a"}, {0.5, 0.03, "#8a8a8a"}});
}

void TestPictures::drawing()
{
    QFETCH(Probes, probes);
    // Scaled up, so that every probed area is flat for some pixels around.
    QImageReader reader(QStringLiteral(":/") + QString::fromLatin1(QTest::currentDataTag()) +
                        QStringLiteral(".svg"));
    reader.setScaledSize(QSize(400, 400));
    const QImage image = reader.read();
    QVERIFY(!image.isNull());
    for (const Probe &probe : probes) {
        const QColor seen = image.pixelColor(int(probe.x * 400), int(probe.y * 400));
        const auto isNear = [](int one, int other) { return qAbs(one - other) <= 12; }; // in a gradient
        const bool same = seen.alpha() == probe.colour.alpha() &&
                          (seen.alpha() == 0 || (isNear(seen.red(), probe.colour.red()) &&
                                                 isNear(seen.green(), probe.colour.green()) &&
                                                 isNear(seen.blue(), probe.colour.blue())));
        const QString place = QStringLiteral("at %1, %2: ").arg(probe.x).arg(probe.y);
        QVERIFY2(same, qPrintable(place + seen.name(QColor::HexArgb)));
    }
}

void TestPictures::storedAsTheyAre()
{
    int count = 0;
    for (const char *folder :
         {"Check", "Color", "Radio", "SeperateLine", "Button", "Slider", "Expandable", "SpinboxArrow"}) {
        const QDir images(QStringLiteral(":/%1/images").arg(QString::fromLatin1(folder)));
        for (const QFileInfo &picture : images.entryInfoList()) {
            const QResource resource(picture.filePath());
            QCOMPARE(resource.compressionAlgorithm(), QResource::NoCompression);
            // Format 1 keeps no times of modification, later ones do.
            QVERIFY(!resource.lastModified().isValid());
            ++count;
        }
    }
    QCOMPARE(count, 30);
}

void TestPictures::pressedIsHovered()
{
    for (const char *set : {"color", "gradient", "radial_gradient"}) {
        const QString path = QStringLiteral(":/Color/images/") + QString::fromLatin1(set);
        QCOMPARE(QResource(path + QStringLiteral("_press.svg")).uncompressedData(),
                 QResource(path + QStringLiteral("_hover.svg")).uncompressedData());
    }
}

void TestPictures::alphaTexture()
{
    const QImage texture = IconTool::alphaTexture();
    QCOMPARE(texture.size(), QSize(16, 16));
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 16; ++x) {
            const int level = (x < 8) == (y < 8) ? 0x66 : 0x99;
            QCOMPARE(texture.pixelColor(x, y), QColor(level, level, level, 0x7F));
        }
    }
}

void TestPictures::iconStates()
{
    const auto picture = [](const char *path, QIcon::Mode mode) {
        const QIcon icon = IconTool::constructIcon(QString::fromLatin1(path), QSize(16, 16));
        return icon.pixmap(QSize(16, 16), mode, QIcon::On).toImage();
    };
    const char *const set = ":/Color/images/color";
    QCOMPARE(picture(set, QIcon::Normal).size(), QSize(16, 16));
    QCOMPARE(picture(set, QIcon::Normal).pixelColor(8, 8), QColor("#5C605F"));
    QCOMPARE(picture(set, QIcon::Active).pixelColor(8, 8), QColor("#08A275"));
    QCOMPARE(picture(set, QIcon::Selected).pixelColor(8, 8), QColor("#08A275"));

    expectWarning(QStringLiteral("^Cannot open file")); // of the SVG plug-in
    QVERIFY(picture(":/nowhere", QIcon::Normal).isNull());
    QVERIFY(picture("", QIcon::Normal).isNull());
}

TAVIK_TEST_MAIN(TestPictures)
#include "tst_pictures.moc"
