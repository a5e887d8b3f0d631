#ifndef TAVIK_TAVIKGRADIENTBAR_H
#define TAVIK_TAVIKGRADIENTBAR_H

#include <QColor>
#include <QLinearGradient>
#include <QWidget>

#include <Tavik/tavik_export.h>

/// An editor of a two-ended gradient: a square for each end's colour, and a bar between them on which two
/// handles mark a start and an end value from 0 to 100.
///
/// \code
/// auto *bar = new TavikGradientBar(16.0, 2.0, this);   // 16 by 2 rem
/// wiring->serve(bar);   // a TavikColorWiring, which opens a popup for it
/// connect(bar, &TavikGradientBar::selectedStartColor, chart, &Chart::setLowColor);
/// \endcode
///
/// A press on a square with any mouse button asks for a colour popup; the bar holds none. A drag of a
/// handle selects the colour at its value, and keeps the start value below the end value. The gradient runs
/// over the whole widget, so that the bar shows the stretch behind it. Handles follow their values when
/// they are painted, and can be pressed where they were painted last.
///
/// The rectangles are laid out once, from the size at construction. Where the height is below 7 pixels, or
/// the width is too small for squares and bar side by side, some of them are empty or inside out: they show
/// nothing of use, and a handle that can still be dragged goes against the pointer. A bar needs a width of more
/// than three times the height and 2 pixels.
class TAVIK_EXPORT TavikGradientBar : public QWidget
{
    Q_OBJECT

public:
    /// An end of the gradient.
    enum Side : int {
        StartSide = 0, ///< The left one.
        EndSide = 1,   ///< The right one.
    };

    /// A bar with a fixed size in pixels; what is negative counts as 0.
    TavikGradientBar(const int &width, const int &height, QWidget *parent = nullptr);

    /// A bar with a fixed size in rem.
    TavikGradientBar(const double &remWidth, const double &remHeight, QWidget *parent = nullptr);

    /// A bar with a fixed size in rem.
    TavikGradientBar(const double &remWidth, const int &remHeight, QWidget *parent = nullptr);

    /// A bar with a fixed size in rem.
    TavikGradientBar(const int &remWidth, const double &remHeight, QWidget *parent = nullptr);

    /// A bar of 200 by 24 design pixels, as Qt Designer makes it.
    explicit TavikGradientBar(QWidget *parent = nullptr);

    /// The start handle's value, 50 at first.
    int startValue() const;

    /// Stores the start handle's value as it is, also outside 0 to 100 or beyond the end value. The handle
    /// moves at the next paint, which is not asked for; no signal is emitted.
    void setStartValue(int value);

    /// The end handle's value, 100 at first.
    int endValue() const;

    /// Stores the end handle's value; otherwise as setStartValue().
    void setEndValue(int value);

    /// The colour of the left end, white at first.
    QColor startColor() const;

    /// Sets the colour of the left end, and repaints. Emits selectedStartColor() with the colour at the
    /// start value, which is another one unless that is 0.
    void setStartColor(const QColor &color);

    /// The colour of the right end, black at first.
    QColor endColor() const;

    /// Sets the colour of the right end, and repaints. Emits selectedEndColor() with the colour at the end
    /// value, which is another one unless that is 100.
    void setEndColor(const QColor &color);

    /// The side whose square was pressed last, StartSide at first. It is set before colorPopupRequest() is
    /// emitted.
    Side selectedSide() const;

    /// Stores the side. Nothing is painted or emitted.
    void setSelectedSide(const Side &side);

    /// The colour at a value from 0 to 100, each of red, green, blue and alpha cut to a whole number. A
    /// value outside continues the line; where that leaves 0 to 255, the colour is invalid and the toolkit
    /// warns.
    QColor colorAt(int value) const;

    /// Builds the gradient anew from the two colours, and repaints.
    void refreashGradient();

Q_SIGNALS:
    /// Never emitted: follow selectedStartColor() and read startValue().
    void startValueChanged(int value);

    /// The start handle was dragged, also if its value is the same as before, or the start colour was set.
    /// Carries the colour at the start value.
    void selectedStartColor(QColor color);

    /// Never emitted: follow selectedEndColor() and read endValue().
    void endValueChanged(int value);

    /// The end handle was dragged, also if its value is the same as before, or the end colour was set.
    /// Carries the colour at the end value.
    void selectedEndColor(QColor color);

    /// A square was pressed. Carries the middle of its lower edge in global coordinates, in pixels, and its
    /// colour: what TavikColorPopup::showColorPopup() takes.
    void colorPopupRequest(const QPoint &pos, const QColor &color);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    friend class GradientParts;

    static constexpr int minValue = 0;
    static constexpr int maxValue = 100;

    QRect innerSquare(const QRect &square) const;
    QPoint handleCenter(int value) const;
    int valueAt(int x) const;
    void requestPopup(Side side, const QRect &square, const QColor &color);
    void dragStart(int value);
    void dragEnd(int value);
    void paintSquare(QPainter &painter, const QRect &square, const QBrush &texture,
                     const QColor &color) const;
    static void paintHandle(QPainter &painter, const QRect &handle, bool isPressed);

    QRect m_startSquare;
    QRect m_endSquare;
    QRect m_barRect;
    QColor m_startColor = Qt::white;
    QColor m_endColor = Qt::black;
    int m_startValue = 50;
    int m_endValue = 100;
    QRect m_startHandle;
    QRect m_endHandle;
    bool m_startPressed = false;
    bool m_endPressed = false;
    Side m_selectedSide = StartSide;
    QLinearGradient m_gradient;
};

#endif
