#ifndef TAVIK_TAVIKBUTTON_H
#define TAVIK_TAVIKBUTTON_H

#include <QPushButton>

#include <Tavik/LenConverter>
#include <Tavik/RemSized>
#include <Tavik/tavik_export.h>

class QLabel;

/// A push button in five looks, with text, an icon or both; or a pure picture button of three drawings.
///
/// \code
/// auto *ok = new TavikButton(tr("OK"), this);
/// auto *cancel = new TavikButton(tr("Cancel"), TavikButton::Outline, this);
/// connect(ok, &QPushButton::clicked, this, &QDialog::accept);
/// \endcode
///
/// The style setters only store their value: set all that is wanted, then call updateStyleSheet() once.
/// \code
/// ok->setBgColor("#108ee9");
/// ok->setHoverBgColor("#48aaee");
/// ok->updateStyleSheet();
/// \endcode
/// Colours and pixel strings go into the sheet unchecked: with a text that is neither, the toolkit falls
/// back to a value of its own, or, where the sheet can't be read any more, drops it with a warning. A
/// disabled button changes its text colour only, to #909090.
///
/// Icon and text stand close together, as the toolkit puts them: a blank before the text keeps them apart.
class TAVIK_EXPORT TavikButton : public RemSized<QPushButton>
{
    Q_OBJECT

public:
    /// A look. A value outside looks like Solid.
    enum Type : int {
        Solid = 0,   ///< Green fill, white text, rounded.
        Outline = 1, ///< White fill, green text and border, rounded; hover and press keep the fill.
        Toggle = 2,  ///< White fill, dark text, square corners, checkable; green when checked.
        Link = 3,    ///< Blue text without fill and border.
        Flat = 4,    ///< White fill without border, white text, green when checked: for icons.
    };

    /// A button without text.
    explicit TavikButton(Type type = Solid, QWidget *parent = nullptr);

    /// A button with a text.
    explicit TavikButton(const QString &text, Type type = Solid, QWidget *parent = nullptr);

    /// A button with a text in the look of Solid.
    TavikButton(const QString &text, QWidget *parent);

    /// A button without text in the look of Solid, as Qt Designer makes it.
    explicit TavikButton(QWidget *parent);

    /// A button with an icon and a text; the icon's size is in rem. A QSize is taken too, as rem. With a
    /// size that is negative the icon takes the toolkit's own.
    TavikButton(const QIcon &icon, const QSizeF &iconRemSize, const QString &text, Type type = Solid,
                QWidget *parent = nullptr);

    /// A button with an icon; its size is in rem, see above. Write the type out: `{16, 16}` is ambiguous.
    TavikButton(const QIcon &icon, const QSizeF &iconRemSize, Type type = Solid, QWidget *parent = nullptr);

    /// A button with an icon; its size is in pixels and does not grow with the rem. Write the type out:
    /// `{16, 16}` is ambiguous.
    TavikButton(const QIcon &icon, const QSize &iconSize, Type type = Solid, QWidget *parent = nullptr);

    /// A button that holds a picture and, beside it, the caller's label, which it takes over.
    ///
    /// `imageSize` is in design pixels; the picture is scaled to it, and stays empty if `imagePath`
    /// can't be read. Without a label, only the picture is there, and the toolkit warns. The button has the
    /// toolkit's own look until updateStyleSheet() is called, and, as the toolkit measures the button's
    /// text alone, wants a size: setRemSize().
    TavikButton(const QString &imagePath, const QSize &imageSize, QLabel *label, QWidget *parent = nullptr);

    /// Gives the style properties the values of a type, and makes a Toggle checkable; a type outside the
    /// enumeration changes nothing. The new look shows at the next updateStyleSheet().
    void initStyleProperties(Type type);

    /// Builds the style sheet anew and sets it.
    void updateStyleSheet();

    /// Sets the font size in rem and restyles; the toolkit warns of a size that is not above 0.
    void setFontRemSz(double rem);

    /// Sets the font size in pixels, without scaling, and restyles; otherwise as setFontRemSz().
    void setFontPxSz(int px);

    /// Whether the button paints its icon alone, over its whole area.
    bool isPaintOverrided() const;

    /// Turns the button into a picture button, or back, from its next repaint on.
    ///
    /// A picture button draws nothing but its icon, scaled to its own size: the drawing of
    /// QIcon::Selected when it is checked, of QIcon::Active when the pointer is over it, else of
    /// QIcon::Normal. Without an icon it draws nothing, and still takes clicks. Give it the shape of its
    /// drawings, or they are stretched. See IconTool::constructIcon().
    void setIsPaintOverrided(bool isPaintOverrided);

    /// Fill at rest.
    QString bgColor() const;

    /// Stores the fill at rest; shows at the next updateStyleSheet().
    void setBgColor(const QString &bgColor);

    /// Fill under the pointer.
    QString hoverBgColor() const;

    /// Stores the fill under the pointer; shows at the next updateStyleSheet().
    void setHoverBgColor(const QString &hoverBgColor);

    /// Fill while pressed.
    QString pressBgColor() const;

    /// Stores the fill while pressed; shows at the next updateStyleSheet().
    void setPressBgColor(const QString &pressBgColor);

    /// Fill when checked.
    QString checkedBgColor() const;

    /// Stores the fill when checked; shows at the next updateStyleSheet().
    void setCheckedBgColor(const QString &checkedBgColor);

    /// Text colour at rest.
    QString color() const;

    /// Stores the text colour at rest; shows at the next updateStyleSheet().
    void setColor(const QString &color);

    /// Text colour under the pointer.
    QString hoverColor() const;

    /// Stores the text colour under the pointer; shows at the next updateStyleSheet().
    void setHoverColor(const QString &hoverColor);

    /// Text colour when checked.
    QString checkedColor() const;

    /// Stores the text colour when checked; shows at the next updateStyleSheet().
    void setCheckedColor(const QString &checkedColor);

    /// Border colour at rest.
    QString borderColor() const;

    /// Stores the border colour at rest; shows at the next updateStyleSheet().
    void setBorderColor(const QString &borderColor);

    /// Border colour under the pointer.
    QString hoverBorderColor() const;

    /// Stores the border colour under the pointer; shows at the next updateStyleSheet().
    void setHoverBorderColor(const QString &hoverBorderColor);

    /// Border colour while pressed.
    QString pressBorderColor() const;

    /// Stores the border colour while pressed; shows at the next updateStyleSheet().
    void setPressBorderColor(const QString &pressBorderColor);

    /// Border colour when checked.
    QString checkedBorderColor() const;

    /// Stores the border colour when checked; shows at the next updateStyleSheet().
    void setCheckedBorderColor(const QString &checkedBorderColor);

    /// Border width of all states, in pixels without a unit ("1").
    QString borderWidth() const;

    /// Stores the border width of all states, in pixels without a unit ("1"); shows at the next
    /// updateStyleSheet().
    void setBorderWidth(const QString &borderWidth);

    /// Corner radius, in pixels without a unit ("4").
    QString borderRadius() const;

    /// Stores the corner radius, in pixels without a unit ("4"); shows at the next updateStyleSheet().
    void setBorderRadius(const QString &borderRadius);

    /// Margin around the border, in pixels without a unit ("0").
    QString margin() const;

    /// Stores the margin around the border, in pixels without a unit ("0"); shows at the next
    /// updateStyleSheet().
    void setMargin(const QString &margin);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintPicture(QPainter &painter) const;

    bool m_isPaintOverrided = false;
    QString m_fontSz = LenConverter::iniRemToStrPx(14);
    QString m_bgColor = QStringLiteral("#08a274");
    QString m_hoverBgColor = QStringLiteral("#13b585");
    QString m_pressBgColor = QStringLiteral("#138765");
    QString m_checkedBgColor = QStringLiteral("#08a274");
    QString m_color = QStringLiteral("#ffffff");
    QString m_hoverColor = QStringLiteral("#ffffff");
    QString m_pressColor = QStringLiteral("#ffffff");
    QString m_checkedColor = QStringLiteral("#ffffff");
    QString m_borderColor = QStringLiteral("#d3d3d3");
    QString m_hoverBorderColor = QStringLiteral("#d3d3d3");
    QString m_pressBorderColor = QStringLiteral("#d3d3d3");
    QString m_checkedBorderColor = QStringLiteral("#d3d3d3");
    QString m_borderWidth = QStringLiteral("1");
    QString m_borderRadius = QStringLiteral("4");
    QString m_margin = QStringLiteral("0");
};

#endif
