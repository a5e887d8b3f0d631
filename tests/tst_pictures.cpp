#include "support.h"

#include <Tavik/IconTool>

#include <QImageReader>
#include <QXmlStreamReader>

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
    void threeStates_data();
    void threeStates();
    void missingFiles();
};

// Read before main(), and so before any application object.
static const bool wereThereAtLoad = QFile::exists(QStringLiteral(":/Check/images/check.svg"));

void TestPictures::reachableBeforeTheApplication()
{
    QVERIFY(wereThereAtLoad);
}

namespace {

const QString boxA = QStringLiteral("-197 320.9 200 200");
const QString box1024 = QStringLiteral("0 0 1024 1024");
const QString box200 = QStringLiteral("0 0 200 200");

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
    QTest::addColumn<QString>("viewBox");
    QTest::addColumn<QString>("width"); // empty if the drawing names none
    QTest::addColumn<QString>("height");
    QTest::addColumn<Probes>("probes");

    const auto add = [](const char *path, const QString &viewBox, const char *width, const char *height,
                        const Probes &probes) {
        QTest::newRow(path) << viewBox << QString::fromLatin1(width) << QString::fromLatin1(height)
                            << probes;
    };
    // An outline is probed on its upper edge and beside it, a mark where it must and must not be.
    const auto box = [](const char *colour) {
        return Probes{{0.5, 0.042, QColor(colour)}, {0.042, 0.5, QColor(colour)}, {0.5, 0.15, none}};
    };
    add("Check/images/uncheck", boxA, "", "", box("#BFBFBF") + Probes{{0.44, 0.69, none}});
    add("Check/images/uncheck_hover", boxA, "", "", box("#08A274") + Probes{{0.44, 0.69, none}});
    add("Check/images/check", boxA, "", "", box("#08A274") + Probes{{0.43, 0.69, QColor("#08A274")}});

    const auto ring = [](const char *colour, const QColor &centre) {
        return Probes{{0.5, 0.1, QColor(colour)}, {0.9, 0.5, QColor(colour)}, {0.5, 0.04, none},
                      {0.5, 0.2, none},           {0.5, 0.5, centre},         {0.5, 0.7, centre}};
    };
    add("Radio/images/radio_unchecked", boxA, "", "", ring("#BFBFBF", none));
    add("Radio/images/radio_unchecked_hover", boxA, "", "", ring("#13B585", none));
    add("Radio/images/radio_unchecked_press", boxA, "", "", ring("#138765", none));
    add("Radio/images/radio_checked", boxA, "", "", ring("#08A274", "#08A274"));

    const auto chevron = [](const char *colour, bool up) {
        const double tip = up ? 0.28 : 0.72;
        const double open = 1 - tip;
        return Probes{{0.5, tip, QColor(colour)},
                      {0.5, open, none},
                      {0.06, open, QColor(colour)},
                      {0.94, open, QColor(colour)},
                      {0.06, tip, none}};
    };
    add("SpinboxArrow/images/arrow_up", boxA, "", "", chevron("#FFFFFF", true));
    add("SpinboxArrow/images/arrow_down", boxA, "", "", chevron("#FFFFFF", false));
    add("SpinboxArrow/images/arrow_up_disabled", boxA, "", "", chevron("#E4E4E4", true));
    add("SpinboxArrow/images/arrow_down_disabled", boxA, "", "", chevron("#E4E4E4", false));

    add("Expandable/images/expanded", box1024, "16", "16",
        {{0.5, 0.65, "#333333"}, {0.25, 0.36, "#333333"}, {0.75, 0.36, "#333333"}, {0.25, 0.65, none}});
    add("Expandable/images/unexpanded", box1024, "18", "18",
        {{0.35, 0.5, "#2c2c2c"}, {0.64, 0.25, "#2c2c2c"}, {0.64, 0.75, "#2c2c2c"}, {0.35, 0.25, none}});
    add("SeperateLine/images/seperate_line", QString(), "280", "1",
        {{0.01, 0.5, none}, {0.52, 0.5, "#e5e5e5"}});

    add("Color/images/color_picker", QStringLiteral("0 0 1028 1024"), "200.78125", "200",
        {{0.8, 0.2, "#666666"}, {0.5, 0.9, none}, {0.2, 0.2, none}, {0.12, 0.88, "#666666"}});
    add("Color/images/plus", box1024, "25", "25",
        {{0.5, 0.5, "#A3A3A3"}, {0.5, 0.2, "#A3A3A3"}, {0.2, 0.5, "#A3A3A3"}, {0.3, 0.3, none}});
    add("Color/images/refresh", QStringLiteral("-197 320.9 200.4 200"), "", "",
        {{0.13, 0.5, "#A3A3A3"}, {0.5, 0.87, "#A3A3A3"}, {0.5, 0.5, none}});

    const auto swatch = [](const char *border, const Probes &fill) {
        return Probes{{0.5, 0.042, QColor(border)}, {0.042, 0.5, QColor(border)}} + fill;
    };
    add("Color/images/color", boxA, "", "", swatch("#D3D3D3", {{0.5, 0.5, "#5C605F"}}));
    add("Color/images/color_hover", boxA, "", "", swatch("#07825C", {{0.5, 0.5, "#08A275"}}));
    add("Color/images/gradient", boxA, "", "",
        swatch("#D3D3D3", {{0.92, 0.08, "#FFFFFF"}, {0.08, 0.92, "#5C605F"}}));
    add("Color/images/gradient_hover", boxA, "", "",
        swatch("#07825C", {{0.92, 0.08, "#FFFFFF"}, {0.08, 0.92, "#08A275"}}));
    add("Color/images/radial_gradient", boxA, "", "",
        swatch("#D3D3D3", {{0.5, 0.5, "#FBFDFA"}, {0.08, 0.92, "#6F7272"}}));
    add("Color/images/radial_gradient_hover", boxA, "", "",
        swatch("#07825C", {{0.5, 0.5, "#FBFDFA"}, {0.08, 0.92, "#08A275"}}));

    add("Button/images/delete", box200, "", "",
        {{0.5, 0.08, "#FC5B56"}, {0.5, 0.5, none}, {0.01, 0.01, none}});
    add("Button/images/delete_grey", box200, "", "",
        {{0.5, 0.08, "#EAEAEA"}, {0.5, 0.5, "#8C8C8C"}, {0.01, 0.01, none}});
    add("Slider/images/circle", box1024, "16", "16", {{0.5, 0.5, "#8a8a8a"}, {0.5, 0.03, "#8a8a8a"}});
}

void TestPictures::drawing()
{
    QFETCH(Probes, probes);
    const QString path =
        QStringLiteral(":/") + QString::fromLatin1(QTest::currentDataTag()) + QStringLiteral(".svg");
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    QVERIFY(xml.readNextStartElement());
    QTEST(xml.attributes().value(QLatin1String("viewBox")).toString(), "viewBox");
    QTEST(xml.attributes().value(QLatin1String("width")).toString(), "width");
    QTEST(xml.attributes().value(QLatin1String("height")).toString(), "height");

    // Scaled up, so that every probed area is flat for some pixels around.
    QImageReader reader(path);
    reader.setScaledSize(QSize(400, 400));
    const QImage image = reader.read();
    QVERIFY(!image.isNull());
    for (const Probe &probe : probes) {
        const QColor seen = image.pixelColor(int(probe.x * 400), int(probe.y * 400));
        const int tolerance = 12; // a gradient's corner is not quite its last stop
        const bool same = seen.alpha() == probe.colour.alpha() &&
                          (seen.alpha() == 0 || (qAbs(seen.red() - probe.colour.red()) <= tolerance &&
                                                 qAbs(seen.green() - probe.colour.green()) <= tolerance &&
                                                 qAbs(seen.blue() - probe.colour.blue()) <= tolerance));
        QVERIFY2(
            same,
            qPrintable(
                QStringLiteral("at %1, %2: %3").arg(probe.x).arg(probe.y).arg(seen.name(QColor::HexArgb))));
    }
}

void TestPictures::storedAsTheyAre()
{
    int count = 0;
    for (const QString &folder :
         {QStringLiteral("Check"), QStringLiteral("Color"), QStringLiteral("Radio"),
          QStringLiteral("SeperateLine"), QStringLiteral("Button"), QStringLiteral("Slider"),
          QStringLiteral("Expandable"), QStringLiteral("SpinboxArrow")}) {
        const QDir images(QStringLiteral(":/") + folder + QStringLiteral("/images"));
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
    for (const QString &set :
         {QStringLiteral("color"), QStringLiteral("gradient"), QStringLiteral("radial_gradient")}) {
        const QString path = QStringLiteral(":/Color/images/") + set;
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

void TestPictures::threeStates_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QColor>("colour");
    QTest::newRow("normal") << int(QIcon::Normal) << QColor("#5C605F");
    QTest::newRow("active") << int(QIcon::Active) << QColor("#08A275");
    QTest::newRow("selected") << int(QIcon::Selected) << QColor("#08A275");
}

void TestPictures::threeStates()
{
    QFETCH(int, mode);
    const QIcon icon = IconTool::constructIcon(QStringLiteral(":/Color/images/color"), QSize(16, 16));
    const QPixmap pixmap = icon.pixmap(QSize(16, 16), QIcon::Mode(mode), QIcon::On);
    QCOMPARE(pixmap.size(), QSize(16, 16));
    QTEST(pixmap.toImage().pixelColor(8, 8), "colour");
}

void TestPictures::missingFiles()
{
    expectWarning(QStringLiteral("^Cannot open file")); // of the SVG plug-in
    for (const QString &path :
         {QStringLiteral(":/Color/images/color.svg"), QStringLiteral(":/nowhere"), QString()}) {
        const QIcon icon = IconTool::constructIcon(path, QSize(16, 16));
        QVERIFY(icon.pixmap(QSize(16, 16), QIcon::Normal, QIcon::On).isNull());
    }
}

TAVIK_TEST_MAIN(TestPictures)
#include "tst_pictures.moc"
