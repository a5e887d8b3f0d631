#ifndef TAVIK_TAVIKDOUBLESPINBOX_H
#define TAVIK_TAVIKDOUBLESPINBOX_H

#include <QDoubleSpinBox>

#include <Tavik/RemSized>
#include <Tavik/TypographyTool>
#include <Tavik/WheelBlocked>
#include <Tavik/tavik_export.h>

/// A field for a number with two decimals.
///
/// \code
/// auto *zoom = new TavikDoubleSpinbox(0.25, 4.0, 0.25, this);
/// connect(zoom, qOverload<double>(&QDoubleSpinBox::valueChanged), view, &View::setZoom);
/// \endcode
///
/// The wheel ends at the spin box: neither its value changes nor does anything around it scroll.
class TAVIK_EXPORT TavikDoubleSpinbox : public WheelBlocked<RemSized<QDoubleSpinBox>>
{
    Q_OBJECT

public:
    /// A spin box with a range and a step. With a minimum above the maximum, the maximum becomes the
    /// minimum.
    TavikDoubleSpinbox(double minimum, double maximum, double step = 1, QWidget *parent = nullptr);

    /// A spin box with the toolkit's range, 0 to 99.99, as Qt Designer makes it.
    explicit TavikDoubleSpinbox(QWidget *parent = nullptr);

    /// Sets the font size in rem and restyles.
    void setFontRemSz(double rem);

    /// Builds the style sheet anew and sets it.
    void updateStyleSheet();

private:
    QString m_fontSz = TypographyTool::defualtFontSz();
};

#endif
