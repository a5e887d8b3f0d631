#ifndef TAVIK_POPUPOUTLINE_P_H
#define TAVIK_POPUPOUTLINE_P_H

#include <QLine>
#include <QMargins>
#include <QPoint>
#include <QVector>

class QPainter;
class QSize;

/// The popup's outline: a box whose arrow points up or down, with a line between controls and palette. All lengths
/// are pixels at every rem.
class PopupOutline
{
public:
    /// What is left free around the outline for its shadow.
    static constexpr int shadowRadius = 5;
    static constexpr int arrowHeight = 14;
    /// How far the arrow's tip is from the left edge of the popup.
    static constexpr int tipOffset = 170 + shadowRadius;

    /// No outline yet: nothing is painted.
    PopupOutline() = default;

    /// The outline of a popup of a size, below what the arrow points to or above it.
    PopupOutline(const QSize &size, bool arrowUp);

    /// Whether it is one of that side already.
    bool hasSide(bool arrowUp) const;

    /// Where the controls begin.
    QMargins margins() const;

    void paint(QPainter *painter) const;

private:
    bool m_arrowUp = true;
    QVector<QPoint> m_polygon;
    QLine m_separator;
};

#endif
