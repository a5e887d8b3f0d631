#ifndef TAVIK_TAVIKCOMBOBOX_H
#define TAVIK_TAVIKCOMBOBOX_H

#include <QComboBox>

#include <Tavik/RemSized>
#include <Tavik/TypographyTool>
#include <Tavik/tavik_export.h>

/// A drop-down list, for choosing alone or with a field to type into.
///
/// \code
/// auto *unit = new TavikComboBox(this);
/// unit->addItems({tr("Pixels"), tr("Millimetres")});
/// connect(unit, qOverload<int>(&QComboBox::currentIndexChanged), ruler, &Ruler::setUnit);
/// \endcode
///
/// The wheel changes the current item, as in the toolkit. An item of the open list is 20 design pixels high
/// whatever the font size is. Whenever a combo box is polished (before its first show, and again under a new
/// parent), the least width and height that its look asks for overrule a fixed size: set the size when the box
/// stands where it belongs, after ensurePolished().
class TAVIK_EXPORT TavikComboBox : public RemSized<QComboBox>
{
    Q_OBJECT

public:
    /// Whether text can be typed. A value outside acts as ReadOnly.
    enum Type : int {
        ReadOnly = 0, ///< Choosing from the list alone.
        Editable = 1, ///< A field to type into beside the list.
    };

    /// An empty combo box.
    explicit TavikComboBox(Type type = ReadOnly, QWidget *parent = nullptr);

    /// An empty combo box without a field, as Qt Designer makes it.
    explicit TavikComboBox(QWidget *parent);

    /// Sets the font size in rem, of the field and of the open list, and restyles.
    void setFontRemSz(double rem);

    /// Builds the style sheets of the combo box, of its list and of the list's scroll bar anew and sets
    /// them.
    void updateStyleSheet();

protected:
    void wheelEvent(QWheelEvent *event) override;

private:
    QString ownSheet() const;
    QString viewSheet() const;

    QString m_fontSz = TypographyTool::defualtFontSz();
};

#endif
