#ifndef TAVIK_TESTS_STORM_WILD_H
#define TAVIK_TESTS_STORM_WILD_H

#include "random.h"

#include <QColor>
#include <QIcon>
#include <QPoint>
#include <QSize>
#include <QStringList>
#include <QVector>

#include <algorithm>
#include <type_traits>

/// Arguments as nobody should pass them, among some that are right.
namespace Wild {

/// A length in rem. It is never very large, because that would test nothing but the machine's memory, where a
/// control makes a picture of its size, and the toolkit's layouts, which add lengths up as int.
double length(Random &random);

int integer(Random &random);
QString text(Random &random);
QColor color(Random &random);
QIcon icon(Random &random);

/// A number of any size, which is not a length.
struct Number
{
    explicit Number(Random &random);
    operator double() const { return value; }
    double value;
};

/// A length in pixels, see length().
struct Pixels
{
    explicit Pixels(Random &random);
    operator int() const { return value; }
    int value;
};

/// Draws an argument by its type.
template <class T>
T draw(Random &random)
{
    if constexpr (std::is_constructible_v<T, Random &>) {
        return T(random);
    } else if constexpr (std::is_enum_v<T>) {
        // The toolkit's own have no fixed type, which makes a value outside undefined.
        const bool isOurs = !std::is_same_v<T, Qt::Orientation> && !std::is_same_v<T, Qt::CheckState>;
        return T(isOurs ? random.between(-2, 7) : random.between(1, 2));
    } else if constexpr (std::is_same_v<T, bool>) {
        return random.oneIn(2);
    } else if constexpr (std::is_same_v<T, int>) {
        return integer(random);
    } else if constexpr (std::is_same_v<T, double>) {
        return length(random);
    } else if constexpr (std::is_same_v<T, QString>) {
        return text(random);
    } else if constexpr (std::is_same_v<T, QColor>) {
        return color(random);
    } else if constexpr (std::is_same_v<T, QIcon>) {
        return icon(random);
    } else if constexpr (std::is_same_v<T, Qt::Alignment>) {
        return Qt::Alignment(random.below(0x400));
    } else if constexpr (std::is_same_v<T, QVector<QColor>>) {
        T colors(random.below(5));
        std::generate(colors.begin(), colors.end(), [&] { return color(random); });
        return colors;
    } else if constexpr (std::is_same_v<T, QStringList>) {
        return {text(random), text(random), text(random)}; // in braces the order of drawing is fixed
    } else if constexpr (std::is_same_v<T, QSizeF>) {
        return QSizeF{length(random), length(random)};
    } else if constexpr (std::is_same_v<T, QSize>) {
        return QSize{Pixels(random), Pixels(random)};
    } else {
        static_assert(std::is_same_v<T, QPoint>, "No way to draw this type");
        return QPoint{integer(random), integer(random)};
    }
}

} // namespace Wild

#endif
