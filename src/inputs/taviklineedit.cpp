#include "inputs/taviklineedit.h"

#include "foundation/lenconverter.h"
#include "foundation/sheet_p.h"

#include <QRegularExpressionValidator>
#include <QSignalBlocker>

namespace {

// All edits look alike, whatever their type is.
constexpr char color[] = "#404040";
constexpr char disabledColor[] = "#909090";
constexpr char bgColor[] = "#ffffff";
constexpr char selectionBgColor[] = "#13b585";
constexpr char borderColor[] = "#d3d3d3";
constexpr char hoverBorderColor[] = "#08a274";
constexpr char focusBorderColor[] = "#08a274";
constexpr char borderWidth[] = "1";
constexpr char hoverBorderWidth[] = "1";
constexpr char focusBorderWidth[] = "2";
constexpr char borderRadius[] = ""; // corners stay square

constexpr int noDecimals = -1;

/// Leaves what was typed as it is. Qt 6 takes grouping signs out: "1.5" would become "15.0" in German, unseen.
class DecimalValidator : public QDoubleValidator
{
public:
    using QDoubleValidator::QDoubleValidator;

    void fixup(QString &) const override {}
};

} // namespace

TavikLineEdit::TavikLineEdit(const QString &placeholder, Type type, Qt::Alignment alignment,
                             QWidget *parent)
    : RemSized(parent)
    , m_type(type)
{
    TypographyTool::setFontHint(this);
    setPlaceholderText(placeholder);
    updateStyleSheet();
    initValidator();
    setAlignment(alignment);
}

TavikLineEdit::TavikLineEdit(const QString &placeholder, Qt::Alignment alignment, Type type,
                             QWidget *parent)
    : TavikLineEdit(placeholder, type, alignment, parent)
{
}

TavikLineEdit::TavikLineEdit(const QString &placeholder, QWidget *parent)
    : TavikLineEdit(placeholder, Text, Qt::AlignLeft | Qt::AlignVCenter, parent)
{
}

TavikLineEdit::TavikLineEdit(QWidget *parent)
    : TavikLineEdit(QString(), parent)
{
}

void TavikLineEdit::setContent(const QString &text)
{
    if (m_type == Integer)
        setText(QString::number(text.toInt()));
    else if (decimals() != noDecimals)
        setText(QString::number(text.toDouble(), 'f', decimals()));
    else
        setText(text);
}

void TavikLineEdit::setContent(int value)
{
    if (decimals() != noDecimals)
        setContent(double(value));
    else
        setText(QString::number(value));
}

void TavikLineEdit::setContent(double value)
{
    if (decimals() != noDecimals)
        setText(QString::number(value, 'f', decimals()));
    else
        setText(QString::number(value, 'g', 6));
}

void TavikLineEdit::setIntRange(int minimum, int maximum)
{
    if (!m_intValidator)
        return;
    m_intValidator->setBottom(minimum);
    m_intValidator->setTop(maximum);
}

void TavikLineEdit::setFontRemSz(double rem)
{
    m_fontSz = LenConverter::remToStrPx(rem);
    updateStyleSheet();
}

void TavikLineEdit::setFontPxSz(int px)
{
    m_fontSz = QString::number(px);
    updateStyleSheet();
}

void TavikLineEdit::updateStyleSheet()
{
    const Sheet::Table sheet = {
        {"TavikLineEdit{color: ", color},
        {";font-size: ", m_fontSz},
        {"px;background-color: ", bgColor},
        {";selection-background-color: ", selectionBgColor},
        {";border-radius: ", borderRadius},
        {"px;border: ", borderWidth},
        {"px solid ", borderColor},
        {";}TavikLineEdit:hover{border: ", hoverBorderWidth},
        {"px solid ", hoverBorderColor},
        {";}TavikLineEdit:focus{border: ", focusBorderWidth},
        {"px solid ", focusBorderColor},
        {";}TavikLineEdit:read-only, TavikLineEdit:read-only:hover, TavikLineEdit:read-only:focus,"
         "TavikLineEdit:disabled {color: ",
         disabledColor},
        {";border: ", borderWidth},
        {"px solid ", borderColor},
        {";}"},
    };
    Sheet::set(this, sheet);
}

void TavikLineEdit::initValidator()
{
    switch (m_type) {
    case Text:
        break;
    case Integer:
        m_intValidator = new QIntValidator(this);
        setValidator(m_intValidator);
        break;
    case SignedDigits: {
        const QRegularExpression pattern(QStringLiteral("^(\\-)?[0-9]*$"));
        setValidator(new QRegularExpressionValidator(pattern, this));
        break;
    }
    case OneDecimal:
    case TwoDecimals:
        installDecimalValidator();
        break;
    case HexDigits:
        setInputMask(QStringLiteral("hhhhhh"));
        break;
    }
}

void TavikLineEdit::installDecimalValidator()
{
    auto *validator = new DecimalValidator(-9999.0, 9999.0, decimals(), this);
    validator->setNotation(QDoubleValidator::StandardNotation);
    setValidator(validator);
    // Connected before any client can be, so that clients find the rewritten text.
    connect(this, &QLineEdit::editingFinished, this, &TavikLineEdit::rewriteDecimals, Qt::DirectConnection);
}

void TavikLineEdit::rewriteDecimals()
{
    const QSignalBlocker blocker(this);
    setText(QString::number(text().toFloat(), 'f', decimals()));
}

int TavikLineEdit::decimals() const
{
    switch (m_type) {
    case OneDecimal:
        return 1;
    case TwoDecimals:
        return 2;
    default:
        return noDecimals;
    }
}
