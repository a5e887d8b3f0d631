#ifndef TAVIK_TAVIKCOLORWELL_H
#define TAVIK_TAVIKCOLORWELL_H

#include <QColor>
#include <QVector>
#include <QWidget>

#include <Tavik/tavik_export.h>

class TavikButton;

/// A palette of 15 colours in two rows, with a plus button as its sixteenth cell.
///
/// \code
/// auto *well = new TavikColorWell(186, 43, this);
/// connect(well, &TavikColorWell::colorSelected, pen, &Pen::setColor);
/// connect(well, &TavikColorWell::addColorRequested, well, [=] { well->addColor(pen->color()); });
/// \endcode
///
/// The palette begins with a fixed list and lives as long as the well. A press on a cell with any mouse
/// button selects its colour. Cells are 16 pixels wide and 7 apart at every rem: the grid takes 178 by 40
/// pixels, and what the well's size leaves out is cut off.
class TAVIK_EXPORT TavikColorWell : public QWidget
{
    Q_OBJECT

public:
    /// A well with a fixed size in pixels; what is negative counts as 0.
    TavikColorWell(const int &width, const int &height, QWidget *parent = nullptr);

    /// A well of 186 by 43 design pixels, as Qt Designer makes it.
    explicit TavikColorWell(QWidget *parent = nullptr);

    /// Appends the 15 colours of the start to the palette. The constructor has done so; what stands behind
    /// the first 15 is not shown.
    void initColors();

    /// Lays the 16 cells out anew, which gives the same ones as in the constructor.
    void initRects();

    /// Puts a colour in front of the palette, so that all others move one cell on and the last of the 15
    /// goes, and repaints. A colour that is already there is taken too, an invalid one shows as black.
    /// Emits nothing.
    void addColor(const QColor &color);

Q_SIGNALS:
    /// A cell was pressed; carries its colour.
    void colorSelected(const QColor &color);

    /// The plus button was clicked. Answer it with addColor().
    void addColorRequested();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    friend class PaletteParts;

    static constexpr int rows = 2;
    static constexpr int columns = 8;
    static constexpr int colorCount = rows * columns - 1;

    void buildAddButton();
    void select(int cell);

    QVector<QColor> m_colors;
    QVector<QRect> m_rects;
    TavikButton *m_addButton = nullptr;
};

#endif
