#ifndef TAVIK_TAVIKLINEEDIT_H
#define TAVIK_TAVIKLINEEDIT_H

#include <QLineEdit>
#include <QPointer>

#include <Tavik/RemSized>
#include <Tavik/TypographyTool>
#include <Tavik/tavik_export.h>

class QIntValidator;

/// A single-line text field whose type decides what may be typed into it.
///
/// \code
/// auto *name = new TavikLineEdit(tr("Name"), this);
/// auto *age = new TavikLineEdit(tr("Age"), TavikLineEdit::Integer, Qt::AlignRight, this);
/// age->setIntRange(0, 150);
/// connect(age, &QLineEdit::editingFinished, this, [=] { save(age->text().toInt()); });
/// \endcode
///
/// | Type         | What can be typed                  | When editing finishes         |
/// |--------------|------------------------------------|-------------------------------|
/// | Text         | Anything                           |                               |
/// | Integer      | A whole number in the range        |                               |
/// | SignedDigits | An optional minus and digits       |                               |
/// | OneDecimal   | -9999 to 9999 with 1 decimal       | The text is rewritten as 1.5  |
/// | TwoDecimals  | -9999 to 9999 with 2 decimals      | The text is rewritten as 1.50 |
/// | HexDigits    | Up to six hexadecimal digits       |                               |
///
/// A text that is not yet a value of the type, such as an empty Integer field, stays as typed and does not
/// finish editing. The rewrite is done before any slot on `editingFinished` runs, and emits nothing itself.
///
/// The rewrite reads and writes numbers in the C locale, while the validator takes what is typed in the
/// application's locale, QLocale(), as it was when the field was made. Under a comma locale "1,5" is accepted
/// and then rewritten as "0.0". An application that runs under one gives the validator of such a field the
/// C locale too:
/// \code
/// edit->findChild<QDoubleValidator *>()->setLocale(QLocale::c());
/// \endcode
class TAVIK_EXPORT TavikLineEdit : public RemSized<QLineEdit>
{
    Q_OBJECT

public:
    /// What may be typed. A value outside acts as Text.
    enum Type : int {
        Text = 0,         ///< Anything.
        Integer = 1,      ///< A whole number in a range.
        SignedDigits = 2, ///< An optional minus and digits.
        OneDecimal = 3,   ///< A number with one decimal.
        TwoDecimals = 4,  ///< A number with two decimals.
        HexDigits = 5,    ///< Up to six hexadecimal digits.
    };

    /// An empty field with a placeholder, a type and an alignment.
    explicit TavikLineEdit(const QString &placeholder = {}, Type type = Text,
                           Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter,
                           QWidget *parent = nullptr);

    /// The same with alignment and type in the other order.
    TavikLineEdit(const QString &placeholder, Qt::Alignment alignment, Type type = Text,
                  QWidget *parent = nullptr);

    /// An empty field for any text with a placeholder.
    TavikLineEdit(const QString &placeholder, QWidget *parent);

    /// An empty field for any text, as Qt Designer makes it.
    explicit TavikLineEdit(QWidget *parent);

    /// Writes a value given as text in the form of the type; what is no number becomes "0", "0.0" or
    /// "0.00".
    ///
    /// The range is not asked: 300 stands in a field limited to 255. Emits `textChanged` if the text
    /// changes.
    void setContent(const QString &text);

    /// Writes a whole number in the form of the type, otherwise as setContent(const QString &).
    void setContent(int value);

    /// Writes a number in the form of the type, otherwise as setContent(const QString &). Types without
    /// fixed decimals, Integer too, show up to 6 significant digits: 2.5, 1.23457e+06.
    void setContent(double value);

    /// Sets what an Integer field accepts, both ends included. The present text stays as it is. Does
    /// nothing on other types.
    void setIntRange(int minimum, int maximum);

    /// Sets the font size in rem and restyles.
    void setFontRemSz(double rem);

    /// Sets the font size in pixels, without scaling, and restyles.
    void setFontPxSz(int px);

    /// Builds the style sheet anew and sets it.
    void updateStyleSheet();

    /// Installs the validator or the mask of the type. The constructors have done so: an application has no
    /// need to call it again.
    void initValidator();

private:
    void installDecimalValidator();
    void rewriteDecimals();
    int decimals() const;

    Type m_type;
    QString m_fontSz = TypographyTool::defualtFontSz();
    QPointer<QIntValidator> m_intValidator;
};

#endif
