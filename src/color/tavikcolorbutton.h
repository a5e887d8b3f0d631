#ifndef TAVIK_TAVIKCOLORBUTTON_H
#define TAVIK_TAVIKCOLORBUTTON_H

#include <QColor>
#include <QPushButton>

#include <Tavik/LenConverter>
#include <Tavik/RemSized>
#include <Tavik/tavik_export.h>

/// A flat push button with a colour swatch, which asks for a colour popup.
///
/// \code
/// auto *fill = new TavikColorButton(Qt::red, this);
/// fill->setRemSize(6, 2);
/// wiring->serve(fill); // a TavikColorWiring, which opens a popup for it
/// connect(fill, &TavikColorButton::colorChanged, shape, &Shape::setFill);
/// \endcode
///
/// The button holds no popup: a click changes nothing until someone calls setCurrentColor(). A
/// checkerboard shows through a colour with alpha, an invalid colour shows as black. Without a size set the
/// button has that of a push button without a text; one too small for the swatch's margins (0.42 rem above
/// and below, 0.83 rem at the sides) shows no swatch.
class TAVIK_EXPORT TavikColorButton : public RemSized<QPushButton>
{
    Q_OBJECT

public:
    /// A button with a colour.
    explicit TavikColorButton(const QColor &color = Qt::white, QWidget *parent = nullptr);

    /// A white button, as Qt Designer makes it.
    explicit TavikColorButton(QWidget *parent);

    /// The colour shown.
    QColor currentColor() const;

    /// Sets the colour, whether it is a new one or not, and repaints. Emits colorChanged().
    void setCurrentColor(const QColor &color);

    /// Builds the style sheet anew and sets it.
    void updateStyleSheet();

Q_SIGNALS:
    /// The button was clicked. Carries its centre in global coordinates, in pixels, and its colour: what
    /// TavikColorPopup::showColorPopup() takes.
    void showPopup(const QPoint &pt, const QColor &color);

    /// The colour was set, by whomever.
    void colorChanged(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;

private Q_SLOTS:
    void onColorButtonClicked();

private:
    QRect swatchRect() const;

    const int m_paddingV = LenConverter::remToPx(0.42);
    const int m_paddingH = LenConverter::remToPx(0.83);
    QColor m_currentColor;
};

#endif
