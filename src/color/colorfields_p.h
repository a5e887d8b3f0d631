#ifndef TAVIK_COLORFIELDS_P_H
#define TAVIK_COLORFIELDS_P_H

class QBoxLayout;
class QColor;
class TavikLineEdit;

/// The popup's eight fields, in two rows. What is written into them by write functions runs no slot.
class ColorFields
{
public:
    /// Makes the fields and adds their rows to a column, whose widget they then belong to.
    void build(QBoxLayout *column);

    void writeHex(const QColor &color) const;
    void writeRgbAndCmy(const QColor &color) const;
    void writeAll(const QColor &color) const;

    /// The number in a field; 0 for none.
    static int number(const TavikLineEdit *field);

    /// Writes 255 minus the number of another field into a field, whose slot then runs.
    static void setComplement(TavikLineEdit *field, const TavikLineEdit *other);

    TavikLineEdit *hex = nullptr;
    TavikLineEdit *red = nullptr;
    TavikLineEdit *green = nullptr;
    TavikLineEdit *blue = nullptr;
    TavikLineEdit *alpha = nullptr;
    TavikLineEdit *cyan = nullptr;
    TavikLineEdit *magenta = nullptr;
    TavikLineEdit *yellow = nullptr;

private:
    void writeRgb(const QColor &color) const;
    void writeCmy(const QColor &color) const;
};

#endif
