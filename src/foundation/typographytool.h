#ifndef TAVIK_TYPOGRAPHYTOOL_H
#define TAVIK_TYPOGRAPHYTOOL_H

#include <QString>

#include <Tavik/tavik_export.h>

class QWidget;

/// The library's two font sizes and its font hinting, for an application's own widgets to match.
///
/// \code
/// TypographyTool::setFontHint(view);
/// view->setStyleSheet("QTableView{font-size: " + TypographyTool::defualtFontSz() + "px;}");
/// \endcode
class TAVIK_EXPORT TypographyTool
{
public:
    TypographyTool() = default;

    /// Makes the widget's font prefer vertical hinting: sharp lines, and widths that scale evenly.
    /// Does nothing if there is no widget.
    static void setFontHint(QWidget *widget);

    /// The size of ordinary text, 1.167 rem, in pixels without a unit: "14" at 12 pixels per rem.
    static QString defualtFontSz();

    /// The size of smaller, assisting text, 1 rem, in pixels without a unit: "12" at 12 pixels per rem.
    static QString assistFontSz();
};

#endif
