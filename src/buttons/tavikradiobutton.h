#ifndef TAVIK_TAVIKRADIOBUTTON_H
#define TAVIK_TAVIKRADIOBUTTON_H

#include <QRadioButton>

#include <Tavik/tavik_export.h>

/// A radio button whose indicator grows with the rem.
///
/// \code
/// auto *small = new TavikRadioButton(tr("Small"), this);
/// auto *large = new TavikRadioButton(tr("Large"), this);   // the same parent: one of the two is checked
/// \endcode
///
/// Sizes stay in rem and are turned into pixels when the style sheet is built. The setters only store
/// their value: set all that is wanted, then call updateStyleSheet() once.
///
/// The text is always #404040, and a disabled button looks like an enabled one.
class TAVIK_EXPORT TavikRadioButton : public QRadioButton
{
    Q_OBJECT

public:
    /// A radio button with a text.
    explicit TavikRadioButton(const QString &text = {}, QWidget *parent = nullptr);

    /// A radio button without text, as Qt Designer makes it.
    explicit TavikRadioButton(QWidget *parent);

    /// Font size in rem.
    double fontRemSz() const;

    /// Stores the font size, in rem; shows at the next updateStyleSheet().
    void setFontRemSz(double rem);

    /// Width and height of the indicator in rem.
    double indicatorSz() const;

    /// Stores the width and height of the indicator, in rem; shows at the next updateStyleSheet().
    void setIndicatorSz(double rem);

    /// Builds the style sheet anew, at the present pixels per rem, and sets it.
    void updateStyleSheet();

private:
    double m_fontRemSz = 1.17;
    double m_indicatorSz = 1.25;
};

#endif
