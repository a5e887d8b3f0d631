#ifndef TAVIK_TAVIKSPINBOX_H
#define TAVIK_TAVIKSPINBOX_H

#include <QSpinBox>

#include <Tavik/RemSized>
#include <Tavik/TypographyTool>
#include <Tavik/WheelBlocked>
#include <Tavik/tavik_export.h>

/// A field for a whole number, with or without step buttons.
///
/// \code
/// auto *copies = new TavikSpinbox(1, 99, 1, this);
/// auto *page = new TavikSpinbox(1, 500, 1, this, true, 1.0);   // no buttons, 1 rem font
/// connect(copies, qOverload<int>(&QSpinBox::valueChanged), printer, &Printer::setCopyCount);
/// \endcode
///
/// Without step buttons there is nothing to press, and the look of being pressed never shows. The wheel ends at
/// the spin box: neither its value changes nor does anything around it scroll.
class TAVIK_EXPORT TavikSpinbox : public WheelBlocked<RemSized<QSpinBox>>
{
    Q_OBJECT

public:
    /// A spin box with a range and a step. `fontRemSz` is the font size in rem, 0.0 stands for the
    /// library's ordinary one. With a minimum above the maximum, the maximum becomes the minimum.
    TavikSpinbox(int minimum, int maximum, int step = 1, QWidget *parent = nullptr,
                 bool hideStepButtons = false, double fontRemSz = 0.0);

    /// A spin box with the toolkit's range, 0 to 99, as Qt Designer makes it.
    explicit TavikSpinbox(QWidget *parent = nullptr);

    /// Sets the font size in rem and restyles with step buttons: they come back where they were hidden.
    void setFontRemSz(double rem);

    /// Builds the style sheet with step buttons anew and sets it.
    void updateStyleSheet();

    /// Builds the style sheet without step buttons anew and sets it; keys still step.
    void updateStyleSheetHideStepBut();

private:
    QString m_fontSz = TypographyTool::defualtFontSz();
};

#endif
