#ifndef TAVIK_LENCONVERTER_H
#define TAVIK_LENCONVERTER_H

#include <QSize>
#include <QString>

#include <Tavik/tavik_export.h>

/// Turns lengths into pixels: the one place where every size of the library comes from.
///
/// Lengths are written in rem. One rem is a whole number of pixels, chosen once from the width of the
/// primary screen, so that an interface drawn for a 1920-pixel screen keeps its proportions on others:
///
/// | Available width | Pixels per rem |
/// |-----------------|----------------|
/// | up to 1600      | 10             |
/// | 1601 to 2048    | 12             |
/// | 2049 to 2560    | 18             |
/// | 2561 to 3200    | 24             |
/// | above 3200      | 30             |
///
/// A second input scale is the design pixel: a length as measured on the 1920-pixel design screen,
/// where one rem is 12 pixels. The `iniRem...` conversions take it.
///
/// \code
/// QApplication app(argc, argv);
/// LenConverter::initRem();                  // once, before the first control
/// int margin = LenConverter::remToPx(1.5);  // 18 pixels on a 1920-pixel screen
/// \endcode
///
/// Until initRem() is called one rem is 0 pixels, and so is every length. Nothing watches for a change
/// of screen: what a control has converted stays as it is.
///
/// Every conversion to pixels rounds by round(), so a NaN gives 0 and what no `int` can hold gives the
/// nearest `int`. Strings carry no unit. All functions are for the GUI thread.
class TAVIK_EXPORT LenConverter
{
public:
    LenConverter() = default;

    /// Chooses the pixels per rem from deviceWidth(), by the table above. Needs a live QGuiApplication;
    /// without a screen the width counts as 0.
    static void initRem();

    /// Pixels per rem: 0 before initRem(), and 10, 12, 18, 24 or 30 as it chooses them.
    static int rem();

    /// Width in pixels of the primary screen's available area (without panels and docks), 0 if there is
    /// no screen.
    static int deviceWidth();

    /// Height in pixels of the primary screen's available area, 0 if there is no screen.
    static int deviceHeight();

    /// Width in pixels of the design screen: 1920.
    static int designReference();

    /// deviceWidth() / 1920.0: a continuous ratio that does not depend on the rem.
    static double scale();

    /// Rounds positive values half up (2.5 gives 3) and cuts negative ones towards zero (-1.9 gives -1).
    static int round(double value);

    /// Rem to pixels.
    static int remToPx(double rem);

    /// Rem to pixels in decimal digits.
    static QString remToStrPx(double rem);

    /// Rem in text form to pixels in decimal digits; a text that is no number counts as 0.
    static QString strRemToStrPx(const QString &rem);

    /// Design pixels to pixels.
    static int iniRemToPx(double designPx);

    /// A size in design pixels to one in pixels.
    static QSize iniRemToPxSz(double width, double height);

    /// Design pixels to pixels in decimal digits.
    static QString iniRemToStrPx(double designPx);

    /// Pixels to rem. Has no meaning before initRem().
    static double pxToRem(int px);

    /// Pixels to rem as text with up to 6 significant digits. Has no meaning before initRem().
    static QString pxToStrRem(int px);

    /// A whole number of pixels in text form to rem, as pxToStrRem(); any other text counts as 0.
    /// Has no meaning before initRem().
    static QString strPxToStrRem(const QString &px);

    /// Pixels per rem. The library writes it in initRem() alone. An application that lets its users choose
    /// a size of their own may write it too, before it creates the controls that shall follow.
    static int m_rem;
};

#endif
