#ifndef TAVIK_PAINTMOUSERECT_P_H
#define TAVIK_PAINTMOUSERECT_P_H

#include <QColor>
#include <QStaticText>
#include <QWidget>

#include <memory>

class QPainter;

/// The sampler's frame: 110 x 96 pixels beside the pointer that show the colour under it, as a swatch and
/// as numbers. Only Screenshot makes one.
class PaintMouseRect : public QWidget
{
    Q_OBJECT

public:
    /// Makes a hidden frame over `pixmap`, the frozen desktop, which is shared and must not be an empty
    /// pointer. The pixmap in it may be null.
    PaintMouseRect(std::shared_ptr<QPixmap> pixmap, QWidget *parent);

public Q_SLOTS:
    /// Puts the frame right of and below the pointer at `x` and `y`, in pixels of the parent, or to the
    /// other side on an axis where it would pass the parent's right or bottom edge. The next paint reads
    /// the colour at the same numbers in the pixmap, whatever the device pixel ratio; outside the pixmap,
    /// and in a null one, there is none: the frame then has neither swatch nor numbers.
    void onPostionChange(int x, int y);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    // Takes the colour that the last paint has shown.
    friend class Screenshot;

    QColor readColor() const;
    void setColor(const QColor &color);
    void paintSwatch(QPainter &painter) const;
    void paintOutline(QPainter &painter) const;
    void paintNumbers(QPainter &painter) const;

    int m_x = 0;
    int m_y = 0;
    std::shared_ptr<QPixmap> m_pixmap;
    QColor m_color;
    // Laid out anew only when the colour changes, because each move of the pointer paints them.
    QStaticText m_rgb;
    QStaticText m_cmy;
};

#endif
