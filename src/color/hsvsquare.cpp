#include "color/hsvsquare_p.h"

#include <vector>

// The toolkit's arithmetic, step by step: components are rounded to 16 bits before and after the
// conversion, all else is double, and 16 bits come to 8 by a rounded division. What depends on the column
// alone is worked out once, and the loop that is left is plain enough for the compiler to vectorise.

// Where the processor can work on twice as many pixels at a time, let it: chosen when the library is
// loaded.
#if defined(__x86_64__) && defined(__GLIBC__)
#define TAVIK_WIDER_CLONE __attribute__((target_clones("avx2", "default")))
#else
#define TAVIK_WIDER_CLONE
#endif

namespace {

constexpr double fullScale = 65535;

double component(double share)
{
    return qRound(share * fullScale) / fullScale;
}

inline quint32 byte(double share)
{
    const int rounded =
        int(share * fullScale + 0.5) + 128; // NOLINT(bugprone-incorrect-roundings): as the toolkit
    return quint32(rounded - (rounded >> 8)) >> 8;
}

/// Where in a pixel the largest, the middle and the smallest channel stand, by sixths of the hue circle.
struct Shifts
{
    int largest;
    int middle;
    int smallest;
};
constexpr int red = 16;
constexpr int green = 8;
constexpr int blue = 0;
constexpr Shifts sixths[] = {{red, green, blue}, {green, red, blue}, {green, blue, red},
                             {blue, green, red}, {blue, red, green}, {red, blue, green}};

/// One hue: its sixth, and how strongly saturation takes from the middle and from the smallest channel.
struct Hue
{
    explicit Hue(double hue)
    {
        if (hue == -1.0)
            return;
        const double sixth = qRound(hue * 36000) % 36000 / 6000.0;
        const int index = int(sixth);
        const double fraction = sixth - index;
        shifts = sixths[index];
        middle = index % 2 != 0 ? fraction : 1.0 - fraction;
        smallest = 1.0;
    }

    Shifts shifts = sixths[0];
    double middle = 0.0;
    double smallest = 0.0;
};

TAVIK_WIDER_CLONE void fillRow(quint32 *pixels, int width, double value, const double *middle,
                               const double *smallest, const Shifts &shifts)
{
    const quint32 largest = 0xff000000 | byte(value) << shifts.largest;
    const int middleShift = shifts.middle;
    const int smallestShift = shifts.smallest;
    for (int x = 0; x < width; ++x) {
        pixels[x] =
            largest | byte(value * middle[x]) << middleShift | byte(value * smallest[x]) << smallestShift;
    }
}

void fillRows(QImage &image, const Hue &hue)
{
    const int width = image.width();
    const int height = image.height();
    std::vector<double> middle;
    std::vector<double> smallest;
    for (int x = 0; x < width; ++x) {
        const double saturation = component(double(x) / width);
        middle.push_back(1.0 - saturation * hue.middle);
        smallest.push_back(1.0 - saturation * hue.smallest);
    }
    for (int y = 0; y < height; ++y) {
        const double value = component(double(height - y) / height);
        fillRow(reinterpret_cast<quint32 *>(image.scanLine(y)), width, value, middle.data(),
                smallest.data(), hue.shifts);
    }
}

} // namespace

void HsvSquare::fill(QImage &image, double hue)
{
    if (hue == -1.0 || (hue >= 0.0 && hue <= 1.0))
        fillRows(image, Hue(hue));
    else
        image.fill(Qt::black);
}
