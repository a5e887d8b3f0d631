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
    report->follow(edit, &QLineEdit::textChanged, QStringLiteral("textChanged"));
    QObject::connect(edit, &QLineEdit::editingFinished, report,
                     [=] { report->tell(QStringLiteral("editingFinished"), edit->text()); });
    return Look::live(name, sized(edit), report);
}

} // namespace

QWidget *LineEditSpecimens::types()
{
    const auto field = [](const QString &name, const QString &placeholder, TavikLineEdit::Type type) {
        return live(name, new TavikLineEdit(placeholder, type));
    };
    // Its six places are there from the start: a click into empty ones would begin in their middle.
    auto *color = new TavikLineEdit(QString(), TavikLineEdit::HexDigits);
    color->setContent(QStringLiteral("08a274"));
    return Look::row(
        {field(QStringLiteral("Text"), tr("Anything"), TavikLineEdit::Text),
         field(QStringLiteral("Integer"), tr("Whole number"), TavikLineEdit::Integer),
         field(QStringLiteral("SignedDigits"), tr("Any digits"), TavikLineEdit::SignedDigits),
         field(QStringLiteral("OneDecimal"), QStringLiteral("0.0"), TavikLineEdit::OneDecimal),
         field(QStringLiteral("TwoDecimals"), QStringLiteral("0.00"), TavikLineEdit::TwoDecimals),
         live(QStringLiteral("HexDigits"), color)});
}

QWidget *LineEditSpecimens::contents()
{
    const auto field = [](const QString &call, TavikLineEdit::Type type, auto value) {
        auto *edit = new TavikLineEdit(QString(), type);
        edit->setContent(value);
        return live(call, edit);
    };
    return Look::row(
        {field(QStringLiteral("TwoDecimals, 2.5"), TavikLineEdit::TwoDecimals, 2.5),
         field(QStringLiteral("OneDecimal, 3"), TavikLineEdit::OneDecimal, 3),
         field(QStringLiteral("Integer, \"abc\""), TavikLineEdit::Integer, QStringLiteral("abc"))});
}

QWidget *LineEditSpecimens::rangeAndAlignment()
{
    auto *channel =
        new TavikLineEdit(QStringLiteral("0\u2013255"), Qt::AlignCenter, TavikLineEdit::Integer);
    channel->setIntRange(0, 255);
    channel->setContent(128);
    auto *price = new TavikLineEdit(QStringLiteral("0.00"), TavikLineEdit::TwoDecimals,
                                    Qt::AlignRight | Qt::AlignVCenter);
    price->setContent(19.9);
    return Look::row({live(tr("0 to 255, centred"), channel), live(tr("Price, at the right"), price)});
}

QWidget *LineEditSpecimens::states()
{
    using Specimen::State;
    auto *grid = new StateGrid({State::Rest, State::Hover, State::Focus, State::ReadOnly, State::Disabled});
    grid->addRow(tr("With text"), [] {
        auto *edit = sized(new TavikLineEdit, 13);
        edit->setText(tr("Evening sky"));
        return edit;
    });
    grid->addRow(tr("Empty"), [] { return sized(new TavikLineEdit(tr("Name")), 13); });
    return grid;
}
