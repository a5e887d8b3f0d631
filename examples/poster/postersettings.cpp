#include "postersettings.h"

#include "postersizes.h"

#include <tuple>

namespace {

auto fields(const PosterSettings &s)
{
    return std::tie(s.hasPhotograph, s.photograph, s.ground, s.hasGradient, s.startColor, s.endColor,
                    s.startValue, s.endValue, s.angle, s.opacity, s.caption, s.family, s.captionSize,
                    s.isBold, s.captionColor, s.shadowColor, s.captionColumn, s.captionRow, s.width,
                    s.height, s.isBatch, s.batch);
}

} // namespace

bool PosterSettings::operator==(const PosterSettings &other) const
{
    return fields(*this) == fields(other);
}

void PosterSettings::roundColors()
{
    for (QColor *color : {&ground, &startColor, &endColor, &captionColor, &shadowColor})
        *color = QColor::fromRgba(color->rgba());
}

Qt::Alignment PosterSettings::alignment() const
{
    const Qt::Alignment columns[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
    const Qt::Alignment rows[] = {Qt::AlignTop, Qt::AlignVCenter, Qt::AlignBottom};
    return columns[captionColumn] | rows[captionRow];
}

QGradientStops PosterSettings::stops() const
{
    const auto faded = [this](QColor color) {
        color.setAlpha(qRound(color.alpha() * opacity / 100.0));
        return color;
    };
    return {{startValue / 100.0, faded(startColor)}, {endValue / 100.0, faded(endColor)}};
}

QVector<QSize> PosterSettings::exportSizes() const
{
    if (!isBatch)
        return {size()};
    QVector<QSize> sizes;
    for (const PosterSize &entry : posterSizes()) {
        if (batch.contains(entry.name))
            sizes.append(entry.size);
    }
    return sizes;
}
