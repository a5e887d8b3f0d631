#include "color/hsvsquare_p.h"

#include <QColor>

#include <vector>

// The toolkit's arithmetic, step by step: components are rounded to 16 bits before and after the
// conversion, all else is Real, and 16 bits come to 8 by a rounded division. What depends on the column
// alone is worked out once, and the loop that is left is plain enough for the compiler to vectorise.

// Where the processor can work on twice as many pixels at a time, let it: chosen when the library is
// loaded.
#if defined(__x86_64__) && defined(__GLIBC__)
#define TAVIK_WIDER_CLONE __attribute__((target_clones("avx2", "default")))
#else
#define TAVIK_WIDER_CLONE
#endif

namespace {

/// What the toolkit's colours count in: double in Qt 5, float in Qt 6.
using Real = decltype(QColor().hueF());

constexpr Real fullScale = 65535;

Real component(Real share)
{
    return qRound(share * fullScale) / fullScale;
}

inline quint32 byte(Real share)
{
    const int rounded =
        int(share * fullScale + Real(0.5)) + 128; // NOLINT(bugprone-incorrect-roundings): as the toolkit
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
    explicit Hue(Real hue)
    {
        if (hue == Real(-1))
            return;
        const Real sixth = Real(qRound(hue * 36000) % 36000) / 6000;
        const int index = int(sixth);
        const Real fraction = sixth - Real(index);
        shifts = sixths[index];
        middle = index % 2 != 0 ? fraction : 1 - fraction;
        smallest = 1;
    }

    Shifts shifts = sixths[0];
    Real middle = 0;
    Real smallest = 0;
};

TAVIK_WIDER_CLONE void fillRow(quint32 *pixels, int width, Real value, const Real *middle,
                               const Real *smallest, const Shifts &shifts)
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
    std::vector<Real> middle;
    std::vector<Real> smallest;
    for (int x = 0; x < width; ++x) {
        const Real saturation = component(Real(x) / Real(width));
        middle.push_back(1 - saturation * hue.middle);
        smallest.push_back(1 - saturation * hue.smallest);
    }
    for (int y = 0; y < height; ++y) {
        const Real value = component(Real(height - y) / Real(height));
        fillRow(reinterpret_cast<quint32 *>(image.scanLine(y)), width, value, middle.data(),
                smallest.data(), hue.shifts);
    }
}

} // namespace

void HsvSquare::fill(QImage &image, double hue)
{
    const auto rounded = Real(hue); // as the toolkit takes it
    if (rounded == Real(-1) || (rounded >= 0 && rounded <= 1))
        fillRows(image, Hue(rounded));
    else
        image.fill(Qt::black);
}
