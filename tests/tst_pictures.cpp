#include "support.h"

#include <Tavik/IconTool>

class TestPictures : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void reachableBeforeTheApplication();
    void drawings();
    void storedAsTheyAre();
    void alphaTexture();
    void iconStates();
};

// Read before main(), and so before any application object.
static const bool wereThereAtLoad = QFile::exists(QStringLiteral(":/Check/images/check.svg"));

void TestPictures::reachableBeforeTheApplication()
{
    QVERIFY(wereThereAtLoad);
}

void TestPictures::drawings()
{
    const std::pair<const char *, const char *> rows[] = {
        {"Check/images/uncheck", "#bfbfbf"},
        {"Check/images/uncheck_hover", "#08a274"},
        {"Check/images/check", "#08a274"},
        {"Radio/images/radio_unchecked", "#bfbfbf"},
        {"Radio/images/radio_unchecked_hover", "#13b585"},
        {"Radio/images/radio_unchecked_press", "#138765"},
        {"Radio/images/radio_checked", "#08a274"},
        {"SpinboxArrow/images/arrow_up", "#ffffff"},
        {"SpinboxArrow/images/arrow_down", "#ffffff"},
        {"SpinboxArrow/images/arrow_up_disabled", "#e4e4e4"},
        {"SpinboxArrow/images/arrow_down_disabled", "#e4e4e4"},
        {"Expandable/images/expanded", "#333333"},
        {"Expandable/images/unexpanded", "#2c2c2c"},
        {"SeperateLine/images/seperate_line", "rgb(229,229,229)"},
        {"Color/images/color_picker", "#666666"},
        {"Color/images/plus", "#a3a3a3"},
        {"Color/images/refresh", "#a3a3a3"},
        {"Color/images/color", "#5c605f #d3d3d3"},
        {"Color/images/color_hover", "#07825c #08a275"},
        {"Color/images/color_press", "#07825c #08a275"},
        {"Color/images/gradient", "#5c605f #d3d3d3 #ffffff"},
        {"Color/images/gradient_hover", "#07825c #08a275 #ffffff"},
        {"Color/images/gradient_press", "#07825c #08a275 #ffffff"},
        {"Color/images/radial_gradient", "#6f7272 #9da09f #d3d3d3 #fbfdfa"},
        {"Color/images/radial_gradient_hover", "#07825c #08a274 #fbfdfa"},
        {"Color/images/radial_gradient_press", "#07825c #08a274 #fbfdfa"},
        {"Button/images/delete", "#fc5b56"},
        {"Button/images/delete_grey", "#8c8c8c #eaeaea"},
        {"Slider/images/circle", "#8a8a8a"},
    };
    QSet<QByteArray> sources;
    for (const auto &[path, colours] : rows) {
        const QString name = QStringLiteral(":/%1.svg").arg(QString::fromLatin1(path));
        const QByteArray source = QResource(name).uncompressedData();
        static const QRegularExpression colour(QStringLiteral(R"(#\w{6}|rgb\([\d,]+\))"));
        QStringList found;
        for (auto matches = colour.globalMatch(QString::fromUtf8(source).toLower()); matches.hasNext();)
            found << matches.next().captured();
        found.sort();
        found.removeDuplicates();
        QVERIFY2(found.join(QLatin1Char(' ')) == QLatin1String(colours), path);
        QImage nothing(QImage(name).size(), QImage::Format_ARGB32_Premultiplied);
        nothing.fill(Qt::transparent);
        QVERIFY2(QImage(name) != nothing, path);
        sources << source;
    }
    QCOMPARE(sources.size(), 26); // only the three sets' pressed drawings are their hovered ones

    const std::pair<const char *, QPoint> tips[] = {{"SpinboxArrow/images/arrow_up", {50, 25}},
                                                    {"SpinboxArrow/images/arrow_down", {50, 75}},
                                                    {"Expandable/images/expanded", {50, 75}},
                                                    {"Expandable/images/unexpanded", {27, 50}}};
    for (const auto &[path, tip] : tips) {
        const QImage picture =
            QIcon(QStringLiteral(":/%1.svg").arg(QLatin1String(path))).pixmap(100).toImage();
        QVERIFY2(qAlpha(picture.pixel(tip)) && !qAlpha(picture.pixel(QPoint(100, 100) - tip)), path);
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
}

TAVIK_TEST_MAIN(TestPictures)
#include "tst_pictures.moc"
