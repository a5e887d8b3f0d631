#ifndef POSTER_POSTERSETTINGS_H
#define POSTER_POSTERSETTINGS_H

#include <QColor>
#include <QGradientStops>
#include <QSize>
#include <QStringList>

/// All that decides what a poster looks like and how it is exported: a plain value.
///
/// Lengths are shares of the poster, so that it looks the same at every size.
struct PosterSettings
{
    /// The longest side that a poster can have, in pixels, and the shortest.
    static constexpr int MaximumSide = 8000;
    static constexpr int MinimumSide = 16;

    bool hasPhotograph = true;
    QString photograph = QStringLiteral("own:dawn"); // a file, or one of the own ones, see Photograph
    QColor ground = QColor(0x1d, 0x24, 0x40);        // where there is no photograph

    bool hasGradient = true;
    QColor startColor = QColor(0x0b, 0x6b, 0x5a, 0xe6);
    QColor endColor = QColor(0xff, 0xd9, 0x8a, 0x00);
    int startValue = 5; // where the gradient begins and ends, in percent of its way
    int endValue = 80;
    int angle = 30;    // degrees: 0 runs upwards, 90 to the right
    int opacity = 100; // percent

    QString caption = QStringLiteral("Above the clouds");
    QString family;          // empty: the application's
    double captionSize = 12; // percent of the poster's shorter side
    bool isBold = true;
    QColor captionColor = Qt::white;
    QColor shadowColor = QColor(0, 0, 0, 0x80);
    int captionColumn = 0; // left, centre, right
    int captionRow = 2;    // top, middle, bottom

    int width = 1920; // pixels
    int height = 1080;
    bool isBatch = false;
    QStringList batch = {QStringLiteral("full-hd"), QStringLiteral("phone"), QStringLiteral("square")};

    bool operator==(const PosterSettings &other) const;
    bool operator!=(const PosterSettings &other) const { return !(*this == other); }

    /// Leaves eight bits a channel to each colour, which is what a file keeps.
    void roundColors();

    /// The poster's size in pixels.
    QSize size() const { return {width, height}; }

    /// Alignment of the caption.
    Qt::Alignment alignment() const;

    /// The gradient's stops, with the opacity in their colours.
    QGradientStops stops() const;

    /// The sizes to export to: one, or those of the batch.
    QVector<QSize> exportSizes() const;
};

#endif
