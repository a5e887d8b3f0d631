#ifndef TAVIK_TAVIKLABEL_H
#define TAVIK_TAVIKLABEL_H

#include <QLabel>

#include <Tavik/TypographyTool>
#include <Tavik/tavik_export.h>

/// A line of text: a QLabel in the library's look, for ordinary and for assisting text.
///
/// \code
/// auto *caption = new TavikLabel(tr("Opacity"), this);
/// auto *hint = new TavikLabel(tr("0 is fully transparent"), TavikLabel::Assist, this);
/// \endcode
///
/// The setters of colour and font size restyle the label at once. Colours are written as a style sheet
/// takes them and are not checked: with one that is none, the toolkit drops the colour or the sheet.
///
/// The toolkit indents a padded label by half a letter; setIndent(0) lines it up with other controls.
class TAVIK_EXPORT TavikLabel : public QLabel
{
    Q_OBJECT

public:
    /// A typographic variant. A value outside looks like Default.
    enum Type : int {
        Default = 0, ///< Ordinary text: 1.167 rem, #404040.
        Assist = 1,  ///< Smaller, paler secondary text: 1 rem, #909090.
    };

    /// A label with a text and a type.
    explicit TavikLabel(const QString &text = {}, Type type = Default, QWidget *parent = nullptr);

    /// A label of ordinary text.
    TavikLabel(const QString &text, QWidget *parent);

    /// An empty label of ordinary text, as Qt Designer makes it.
    explicit TavikLabel(QWidget *parent);

    /// Gives colour and font size the values of a type; a type outside the enumeration changes nothing.
    /// The new look shows at the next updateStyleSheet().
    void initStyleProperties(Type type);

    /// Builds the style sheet anew and sets it.
    void updateStyleSheet();

    /// Text colour.
    QString color() const;

    /// Sets the text colour and restyles. A disabled label is "#e0e0e0" whatever is set here.
    void setColor(const QString &color);

    /// Sets the font size in rem and restyles; the toolkit warns of a size that is not above 0.
    void setFontRemSz(double rem);

    /// Fixes the width, in rem; what is negative counts as 0.
    void setRemWidth(double rem);

    /// Fixes the height, in rem; what is negative counts as 0.
    void setRemHeight(double rem);

    /// Fixes width and height, in rem; what is negative counts as 0.
    void setRemSize(double width, double height);

private:
    QString m_fontSz = TypographyTool::defualtFontSz();
    QString m_color = QStringLiteral("#404040");
};

#endif
