#ifndef TAVIK_SQUAREPOINT_P_H
#define TAVIK_SQUAREPOINT_P_H

#include "foundation/controlparts_p.h"

#include <QPoint>
#include <QSize>

class TavikColorPicker;

/// The one part of the saturation/value square: the point that is chosen, which its circle marks.
class SquarePoint : public ControlParts
{
public:
    explicit SquarePoint(TavikColorPicker *square);

    /// How far the point goes, in pixels. The right and the lower edge belong to the square too: that is where
    /// 100 % of the saturation and 0 % of the value are.
    QSize extent() const;

    /// Where the point is, in pixels from the upper left corner.
    QPoint pos() const;

    /// Chooses the point, or the nearest one within the square.
    void moveTo(const QPoint &pos);

    int count() const override;
    QRect rect(int part) const override;
    QString name(int part) const override;
    void follow(QObject *context, const std::function<void(int)> &changed) const override;

private:
    TavikColorPicker *m_square;
};

#endif
