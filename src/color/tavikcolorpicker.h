#ifndef TAVIK_TAVIKCOLORPICKER_H
#define TAVIK_TAVIKCOLORPICKER_H

#include <QColor>
#include <QImage>
#include <QWidget>

#include <Tavik/tavik_export.h>

/// The square of all saturations and values of one hue, with a small circle at the current colour.
///
/// \code
/// auto *square = new TavikColorPicker(190, 136, this);
/// square->setCurrentColor(color);
/// square->setCurrentHue(color.hueF());
/// connect(square, &TavikColorPicker::colorChanged, shape, &Shape::setFill);
/// \endcode
///
/// Saturation grows from left to right, value from bottom to top. A press or a drag with the left button
/// picks; outside the square the circle stays where it was until the pointer comes back in. Alpha plays no
/// part: what is picked is opaque.
///
/// The hue of the square is its own. It is a fraction, 0.0 to 1.0, or -1.0 for grey; with any other hue the
/// toolkit makes no colour, so that the square is black and picking keeps the colour as it is.
///
/// The square takes the widget's area but for two columns at the right and two rows at the bottom. Its size
/// is that of construction; a widget below 3 pixels in either direction has no square.
class TAVIK_EXPORT TavikColorPicker : public QWidget
{
    Q_OBJECT

public:
    /// A picker with a fixed size in pixels; what is negative counts as 0.
    TavikColorPicker(const int &width, const int &height, QWidget *parent = nullptr);

    /// A picker of 190 by 136 design pixels, as Qt Designer makes it.
    explicit TavikColorPicker(QWidget *parent = nullptr);

    /// The hue cut to a whole number: 0 for every hue from 0.0 to below 1.0, 1 for 1.0, -1 for -1.0.
    int currentHue() const;

    /// Sets the hue of the square and of the colours picked from now on, 0.0 to 1.0 or -1.0, and repaints.
    /// The current colour stays, and no signal is emitted. NaN counts as a hue far below -1.0.
    void setCurrentHue(double hue);

    /// The colour set or picked last; invalid at first, with the circle in the lower left corner.
    QColor currentColor() const;

    /// Stores the colour whose saturation and value place the circle. The circle moves at the next paint,
    /// which setCurrentHue() asks for; the hue of the square stays, and no signal is emitted.
    void setCurrentColor(const QColor &color);

    /// Brings the square's image in line with the hue, unless it is already. Each paint does so itself.
    void updateColors();

    /// Picks the colour at a point of the square, in pixels from its upper left corner, and repaints. The
    /// edges right of and below the last pixel belong to it: saturation 1.0 and value 0.0 are there. A
    /// point outside changes nothing. Emits colorChanged(), also for the same point again.
    void updateSelectedColor(int x, int y);

Q_SIGNALS:
    /// A colour was picked: opaque, in HSV form, with the hue of the square.
    void colorChanged(QColor color);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    friend class SquarePoint;

    bool isEmpty() const;
    QRectF circle() const;
    void paintSquare(QPainter &painter) const;
    void paintCircle(QPainter &painter) const;

    double m_hue = 0.0;
    int m_width = 0;
    int m_height = 0;
    QColor m_color;
    QImage m_image;
    double m_imageHue = 0.0;
    bool m_pressed = false;
};

#endif
