#ifndef TAVIK_TAVIKCOLORSILDER_H
#define TAVIK_TAVIKCOLORSILDER_H

#include <QBrush>
#include <QLinearGradient>
#include <QSlider>
#include <QVector>

#include <Tavik/tavik_export.h>

/// A horizontal slider for hue or alpha, its groove filled with a gradient.
///
/// \code
/// auto *hue = new TavikColorSilder(166, 16, TavikColorSilder::Hue, this);   // 0 to 360 degrees
/// connect(hue, &QSlider::valueChanged, this, &Editor::setHue);
///
/// auto *heat = new TavikColorSilder(166, 16, TavikColorSilder::Hue, this);
/// heat->setFirstColor(Qt::blue);                                            // in this order
/// heat->setLastColor(Qt::red);
/// \endcode
///
/// Value, range, signals, keys, wheel and what a press or a drag does are those of QSlider; only the look
/// is its own. The handle is 7 pixels wide at every rem. The slider is painted from left to right, whatever
/// its orientation, its layout direction and its appearance are.
class TAVIK_EXPORT TavikColorSilder : public QSlider
{
    Q_OBJECT

public:
    /// What the slider is for. A value outside gives the toolkit's range, 0 to 99, and no colours.
    enum Type : int {
        Hue = 0,   ///< 0 to 360, the colours of the hue circle.
        Alpha = 1, ///< 0 to 255, from transparent to black over a checkerboard.
    };

    /// A slider with a fixed size in pixels; what is negative counts as 0.
    TavikColorSilder(const int &width, const int &height, Type type = Hue, QWidget *parent = nullptr);

    /// A hue slider of 166 by 16 design pixels, as Qt Designer makes it.
    explicit TavikColorSilder(QWidget *parent = nullptr);

    /// The gradient's colours, evenly spaced from left to right.
    QVector<QColor> colors() const;

    /// Replaces the colours and repaints. Without any colour the groove is an outline.
    void setColors(QVector<QColor> colors);

    /// The first colour; invalid if there is none.
    QColor firstColor() const;

    /// The last colour; invalid if there is none.
    QColor lastColor() const;

    /// Makes this the only colour, and repaints: whatever was there is gone.
    void setFirstColor(QColor color);

    /// Appends a colour, and repaints: nothing is replaced, and the others move closer together.
    void setLastColor(QColor color);

    /// The gradient of all colours over the whole widget, from left to right, or from top to bottom if the
    /// orientation is vertical. A single colour stands at position 0, and so fills all. For an empty list
    /// no stops are set, and the toolkit reports its own two, black and white.
    QLinearGradient gradient() const;

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QRect grooveRect() const;
    QRect handleRect() const;
    void setHandleColor(QRgb color);
    void paintGroove(QPainter &painter) const;
    void paintHandle(QPainter &painter) const;

    QVector<QColor> m_colors;
    QBrush m_textureBrush;
    QRect m_handleRect;
    QColor m_handleColor = Qt::white;
};

#endif
