#ifndef TAVIK_TAVIKCHECKBOX_H
#define TAVIK_TAVIKCHECKBOX_H

#include <QCheckBox>

#include <Tavik/tavik_export.h>

/// A check box whose indicator grows with the rem.
///
/// \code
/// auto *grid = new TavikCheckBox(tr("Show the grid"), this);
/// connect(grid, &QCheckBox::toggled, view, &View::setGridVisible);
/// \endcode
///
/// Sizes stay in rem and are turned into pixels when the style sheet is built. The setters only store
/// their value: set all that is wanted, then call updateStyleSheet() once.
///
/// A disabled box looks like an enabled one, and a partially checked one has no picture of its own.
class TAVIK_EXPORT TavikCheckBox : public QCheckBox
{
    Q_OBJECT

public:
    /// A check box with a text.
    explicit TavikCheckBox(const QString &text = {}, QWidget *parent = nullptr);

    /// A check box without text, as Qt Designer makes it.
    explicit TavikCheckBox(QWidget *parent);

    /// Font size in rem.
    double fontRemSz() const;

    /// Stores the font size, in rem; shows at the next updateStyleSheet().
    void setFontRemSz(double rem);

    /// Width and height of the indicator in rem.
    double indicatorSz() const;

    /// Stores the width and height of the indicator, in rem; shows at the next updateStyleSheet().
    void setIndicatorSz(double rem);

    /// Text colour.
    QString fontColor() const;

    /// Stores the text colour, as a style sheet takes it; shows at the next updateStyleSheet().
    void setFontColor(const QString &color);

    /// Builds the style sheet anew, at the present pixels per rem, and sets it.
    void updateStyleSheet();

private:
    double m_fontRemSz = 1.17;
    QString m_fontColor = QStringLiteral("#404040");
    double m_indicatorSz = 1.25;
};

#endif
