#ifndef TAVIK_SQUAREPOINT_P_H
#define TAVIK_SQUAREPOINT_P_H

#include "color/tavikcolorpicker.h"

#include <QColor>
#include <QPoint>
#include <QSize>

/// Where saturation and value are in the saturation/value square, in pixels.
class SquarePoint
{
public:
    /// The right and the lower edge belong to the square too: that is where 100 % and 0 % are.
    static QSize extent(const TavikColorPicker *square)
    {
        return {qMax(0, square->m_width), qMax(0, square->m_height)};
    }

    static QPoint of(const TavikColorPicker *square)
    {
        const QColor color = square->currentColor();
        const QSize size = extent(square);
        return {qRound(color.saturationF() * size.width()), qRound((1.0 - color.valueF()) * size.height())};
    }
};

#endif
