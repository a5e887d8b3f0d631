#include "color/colorfields_p.h"

#include "buttons/taviklabel.h"
#include "color/tavikcolorpopup.h"
#include "foundation/lenconverter.h"
#include "inputs/taviklineedit.h"

#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {

TavikLineEdit *makeEdit(TavikLineEdit::Type type, double width)
{
    auto *edit = new TavikLineEdit(QString(), type, Qt::AlignHCenter | Qt::AlignVCenter);
    edit->setFontPxSz(LenConverter::iniRemToPx(12));
    edit->setFixedSize(LenConverter::iniRemToPxSz(width, 20));
    return edit;
}

TavikLineEdit *hexEdit()
{
    return makeEdit(TavikLineEdit::HexDigits, 60);
}

TavikLineEdit *channelEdit()
{
    TavikLineEdit *edit = makeEdit(TavikLineEdit::Integer, 28);
    edit->setMaxLength(3);
    edit->setIntRange(0, 255);
    return edit;
}

TavikLineEdit *captioned(TavikLineEdit *edit, const QString &text, QBoxLayout *row)
{
    auto *caption = new TavikLabel(text, TavikLabel::Assist);
    caption->setBuddy(edit); // by which a screen reader names the field
    auto *column = new QVBoxLayout;
    column->addWidget(edit);
    column->addWidget(caption);
    column->setAlignment(caption, Qt::AlignHCenter);
    row->addLayout(column);
    return edit;
}

void write(TavikLineEdit *edit, const QString &text)
{
    const QSignalBlocker blocker(edit);
    edit->setText(text);
}

void write(TavikLineEdit *edit, int channel)
{
    write(edit, QString::number(channel));
}

} // namespace

void ColorFields::build(QBoxLayout *column)
{
    auto *upper = new QHBoxLayout;
    hex = captioned(hexEdit(), TavikColorPopup::tr("Hex"), upper);
    red = captioned(channelEdit(), TavikColorPopup::tr("R"), upper);
    green = captioned(channelEdit(), TavikColorPopup::tr("G"), upper);
    blue = captioned(channelEdit(), TavikColorPopup::tr("B"), upper);
    alpha = captioned(channelEdit(), TavikColorPopup::tr("A"), upper);
    column->addLayout(upper);

    auto *lower = new QHBoxLayout;
    cyan = captioned(channelEdit(), TavikColorPopup::tr("C"), lower);
    magenta = captioned(channelEdit(), TavikColorPopup::tr("M"), lower);
    yellow = captioned(channelEdit(), TavikColorPopup::tr("Y"), lower);
    column->addLayout(lower);
}

int ColorFields::number(const TavikLineEdit *field)
{
    return field->text().toInt();
}

void ColorFields::setComplement(TavikLineEdit *field, const TavikLineEdit *other)
{
    field->setText(QString::number(255 - number(other)));
}

void ColorFields::writeHex(const QColor &color) const
{
    write(hex, color.name());
}

void ColorFields::writeRgbAndCmy(const QColor &color) const
{
    writeRgb(color);
    writeCmy(color);
}

void ColorFields::writeAll(const QColor &color) const
{
    writeHex(color);
    writeRgb(color);
    write(alpha, color.alpha());
    writeCmy(color);
}

void ColorFields::writeRgb(const QColor &color) const
{
    write(red, color.red());
    write(green, color.green());
    write(blue, color.blue());
}

void ColorFields::writeCmy(const QColor &color) const
{
    write(cyan, 255 - color.red());
    write(magenta, 255 - color.green());
    write(yellow, 255 - color.blue());
}
