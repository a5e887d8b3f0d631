#ifndef TAVIK_TESTS_STORM_WILD_H
#define TAVIK_TESTS_STORM_WILD_H

#include "random.h"

#include <QColor>
#include <QDebug>
#include <QIcon>
#include <QPoint>
#include <QSize>
#include <QStringList>
#include <QVector>

#include <algorithm>
#include <type_traits>

/// Arguments as nobody should pass them, among some that are right.
namespace Wild {

/// An argument, and how the log tells it.
template <class T>
struct Drawn
{
    T value;
    QString text;
};

double number(Random &random);

/// A length in rem. It is never very large, because that would test nothing but the machine's memory, where a
/// control makes a picture of its size, and the toolkit's layouts, which add lengths up as int.
double length(Random &random);

int integer(Random &random);
QString text(Random &random);
QColor color(Random &random);
Drawn<QIcon> icon(Random &random);

/// A length in pixels, see length().
int pixels(Random &random);

/// Draws an argument by its type.
template <class T>
Drawn<T> draw(Random &random)
{
    const auto told = [](const auto &value) {
        QString text;
        QDebug(&text).nospace() << value;
        return text.size() < 100 ? text : text.left(100) + QLatin1String("...");
    };
    if constexpr (std::is_same_v<T, QIcon>) {
        return icon(random);
    } else if constexpr (std::is_enum_v<T>) {
        // The toolkit's own have no fixed type, which makes a value outside undefined.
        const bool isOurs = !std::is_same_v<T, Qt::Orientation> && !std::is_same_v<T, Qt::CheckState>;
        const int value = isOurs ? random.between(-2, 7) : random.between(1, 2);
        return {T(value), told(value)};
    } else {
        T value{};
        if constexpr (std::is_same_v<T, bool>)
            value = random.oneIn(2);
        else if constexpr (std::is_same_v<T, int>)
            value = integer(random);
        else if constexpr (std::is_same_v<T, double>)
            value = length(random);
        else if constexpr (std::is_same_v<T, QString>)
            value = text(random);
        else if constexpr (std::is_same_v<T, QColor>)
            value = color(random);
        else if constexpr (std::is_same_v<T, Qt::Alignment>)
            value = Qt::Alignment(random.below(0x400));
        else if constexpr (std::is_same_v<T, QStringList>)
            value << text(random) << text(random) << text(random);
        else if constexpr (std::is_same_v<T, QVector<QColor>>)
            std::generate_n(std::back_inserter(value), random.below(5), [&] { return color(random); });
        else if constexpr (std::is_same_v<T, QSizeF>)
            value.rwidth() = length(random), value.rheight() = length(random);
        else if constexpr (std::is_same_v<T, QSize>)
            value.rwidth() = pixels(random), value.rheight() = pixels(random);
        else if constexpr (std::is_same_v<T, QPoint>)
            value.rx() = integer(random), value.ry() = integer(random);
        else
            static_assert(!sizeof(T), "No way to draw this type");
        return {value, told(value)};
    }
}

} // namespace Wild

#endif
