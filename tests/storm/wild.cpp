#include "wild.h"

#include <limits>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double lengths[] = {nan, -infinity, -1e300, -1, -0.0, 0, 1e-300, 0.3, 0.5, 1, 1.167, 2.5, 9, 30};
constexpr double largeNumbers[] = {1e6, 1e9, 1e300, infinity};

constexpr int smallest = std::numeric_limits<int>::min();
constexpr int largest = std::numeric_limits<int>::max();
constexpr int integers[] = {smallest, smallest + 1, -100000, -255,        -1,     0,   1,   2,
                            7,        50,           99,      100,         101,    255, 256, 300,
                            360,      1000,         100000,  largest - 1, largest};
constexpr int pixelCounts[] = {-1000, -1, 0, 1, 2, 3, 6, 7, 16, 40, 190, 400};

const char *const texts[] = {
    // clang-format off
    "", "x", "Several words, one & mnemonic && more", "\u00c4\u00d6 \u6f22\u5b57 \U0001f642 \u202eright to left",
    "line\nfeed\ttab", "-12", "300", "0,5", "1e400", "nan", "#12", "#08a274", "12px", "<b>rich</b>", "%1 %2 %n", "} { ; :"
    // clang-format on
};

const char *const iconFiles[] = {"", ":/Color/images/plus.svg", ":/Color/images/alpha_texture.png",
                                 "/no/such/file.png", "/dev/null"};

} // namespace

Wild::Number::Number(Random &random)
    : value(random.oneIn(5) ? random.pick(largeNumbers) : length(random))
{
}

double Wild::length(Random &random)
{
    return random.pick(lengths);
}

int Wild::integer(Random &random)
{
    return random.pick(integers);
}

Wild::Pixels::Pixels(Random &random)
    : value(random.pick(pixelCounts))
{
}

QString Wild::text(Random &random)
{
    if (random.oneIn(20))
        return QString(5000, QLatin1Char('w'));
    return QString::fromUtf8(random.pick(texts));
}

QColor Wild::color(Random &random)
{
    const int red = random.below(256);
    const int green = random.below(256);
    const int alpha = random.below(256);
    switch (random.below(8)) {
    case 0:
        return {};
    case 1:
        return Qt::transparent;
    case 2:
        return QColor::fromHsv(-1, 0, red, alpha);
    case 3:
        return QColor::fromHsv(359, red, green, alpha);
    case 4:
        return QColor::fromCmyk(red, green, 7, 8, alpha);
    case 5:
        return QColor::fromRgbF(qreal(4.5F), qreal(-2.0F), qreal(0.1F)); // of the extended kind
    default:
        return {red, green, 99, alpha};
    }
}

QIcon Wild::icon(Random &random)
{
    const QString file = QLatin1String(random.pick(iconFiles));
    return file.isEmpty() ? QIcon() : QIcon(file);
}
