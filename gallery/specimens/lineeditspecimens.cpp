#include "lineeditspecimens.h"

#include "look.h"
#include "report.h"
#include "stategrid.h"

#include <QDoubleValidator>

#include <Tavik/TavikLineEdit>

namespace {

TavikLineEdit *sized(TavikLineEdit *edit, double width = 12)
{
    edit->setRemSize(width, 2.667);
    // The rewrite of decimals knows the point alone, whatever the desktop's language is.
    if (auto *validator = edit->findChild<QDoubleValidator *>())
        validator->setLocale(QLocale::c());
    return edit;
}

QWidget *live(const QString &name, TavikLineEdit *edit)
{
    auto *report = new Report;
    report->follow(edit, &QLineEdit::textChanged, "textChanged");
    QObject::connect(edit, &QLineEdit::editingFinished, report,
        [=] { report->tell("editingFinished", edit->text()); });
    return Look::live(name, sized(edit), report);
}

} // namespace

QWidget *LineEditSpecimens::types()
{
    auto *text = new TavikLineEdit(tr("Anything"));
    auto *digits = new TavikLineEdit(
        tr("Any digits"), TavikLineEdit::SignedDigits);
    auto *oneDecimal = new TavikLineEdit(
        "0.0", TavikLineEdit::OneDecimal);
    // The six places of a color are there from the start: a click into empty ones would begin in their middle.
    //! [types]
    auto *count = new TavikLineEdit(
        tr("Whole number"), TavikLineEdit::Integer);
    auto *price = new TavikLineEdit(
        "0.00", TavikLineEdit::TwoDecimals);
    auto *color = new TavikLineEdit(
        {}, TavikLineEdit::HexDigits);
    color->setContent("08a274");
    //! [types]
    return Look::row({live("Text", text), live("Integer", count),
        live("SignedDigits", digits),
        live("OneDecimal", oneDecimal),
        live("TwoDecimals", price), live("HexDigits", color)});
}

QWidget *LineEditSpecimens::contents()
{
    auto *width = new TavikLineEdit(
        {}, TavikLineEdit::TwoDecimals);
    auto *height = new TavikLineEdit(
        {}, TavikLineEdit::OneDecimal);
    auto *count = new TavikLineEdit({}, TavikLineEdit::Integer);
    //! [contents]
    width->setContent(2.5);   // 2.50
    height->setContent(3);    // 3.0
    count->setContent("abc"); // 0
    //! [contents]
    return Look::row({live("TwoDecimals, 2.5", width),
        live("OneDecimal, 3", height),
        live("Integer, \"abc\"", count)});
}

QWidget *LineEditSpecimens::rangeAndAlignment()
{
    //! [rangeAndAlignment]
    auto *red = new TavikLineEdit(
        tr("Red"), Qt::AlignCenter, TavikLineEdit::Integer);
    red->setIntRange(0, 255);
    red->setContent(128);
    auto *price = new TavikLineEdit("0.00",
        TavikLineEdit::TwoDecimals,
        Qt::AlignRight | Qt::AlignVCenter);
    price->setContent(19.9);
    //! [rangeAndAlignment]
    return Look::row({live(tr("0 to 255, centred"), red),
        live(tr("Price, at the right"), price)});
}

QWidget *LineEditSpecimens::states()
{
    using Specimen::State;
    auto *grid = new StateGrid({State::Rest, State::Hover,
        State::Focus, State::ReadOnly, State::Disabled});
    grid->addRow(tr("With text"), [] {
        //! [states]
        auto *name = new TavikLineEdit(tr("Name"));
        name->setRemSize(13, 2.667);
        name->setText(tr("Evening sky"));
        //! [states]
        return name;
    });
    grid->addRow(tr("Empty"),
        [] { return sized(new TavikLineEdit(tr("Name")), 13); });
    return grid;
}
