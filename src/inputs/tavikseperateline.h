#ifndef TAVIK_TAVIKSEPERATELINE_H
#define TAVIK_TAVIKSEPERATELINE_H

#include <QLabel>

#include <Tavik/tavik_export.h>

/// A light grey horizontal rule, one pixel high, that starts a little in from the left end.
///
/// \code
/// column->addWidget(new TavikSeperateLine(20.0, this));   // 20 rem wide
/// \endcode
///
/// The type of the width decides its unit: an `int` means pixels, a `double` rem. Where the toolkit's SVG
/// plugin is missing, the rule stays empty.
class TAVIK_EXPORT TavikSeperateLine : public QLabel
{
    Q_OBJECT

public:
    /// A rule with a fixed width in pixels.
    explicit TavikSeperateLine(int pxWidth, QWidget *parent = nullptr);

    /// A rule with a fixed width in rem.
    explicit TavikSeperateLine(double remWidth, QWidget *parent = nullptr);

    /// A rule as wide as its layout makes it, as Qt Designer makes it.
    explicit TavikSeperateLine(QWidget *parent = nullptr);
};

#endif
