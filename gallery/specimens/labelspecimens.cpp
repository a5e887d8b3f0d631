#include "labelspecimens.h"

#include "look.h"
#include "stategrid.h"

#include <QGridLayout>

#include <Tavik/LenConverter>
#include <Tavik/TavikButton>
#include <Tavik/TavikLabel>

namespace {

/// A choice of two, the first of which is chosen.
QWidget *choice(const QString &first, const QString &second)
{
    QWidget *row = Look::row(
        {new TavikButton(first, TavikButton::Toggle),
            new TavikButton(second, TavikButton::Toggle)});
    const QList<TavikButton *> buttons =
        row->findChildren<TavikButton *>();
    for (TavikButton *button : buttons) {
        button->setRemSize(8, 2.333);
        button->setAutoExclusive(true);
    }
    buttons.first()->setChecked(true);
    return row;
}

} // namespace

QWidget *LabelSpecimens::types()
{
    using Specimen::State;
    auto *grid = new StateGrid({State::Rest, State::Disabled});
    grid->addRow("Default", [] {
        //! [types]
        auto *caption = new TavikLabel(tr("Opacity"));
        caption->setIndent(0); // to begin where it stands
        //! [types]
        return caption;
    });
    grid->addRow("Assist", [] {
        //! [types]
        auto *hint = new TavikLabel(
            tr("In per cent"), TavikLabel::Assist);
        hint->setIndent(0);
        //! [types]
        return hint;
    });
    return grid;
}

QWidget *LabelSpecimens::sizeAndColour()
{
    TavikLabel *title = Look::flush(new TavikLabel(tr("Total")));
    title->setFontRemSz(1.667);
    //! [sizeAndColour]
    auto *sum = new TavikLabel("128.50");
    sum->setFontRemSz(1.667);
    sum->setColor("#08a274");
    //! [sizeAndColour]
    return Look::row({title, sum});
}

QWidget *LabelSpecimens::form()
{
    auto *widget = new QWidget;
    auto *form = new QGridLayout(widget);
    form->setContentsMargins(0, 0, 0, 0);
    form->setHorizontalSpacing(LenConverter::remToPx(Look::Gap));
    form->setVerticalSpacing(
        LenConverter::remToPx(Look::SmallGap));
    form->setColumnMinimumWidth(0, LenConverter::remToPx(8));
    form->setColumnStretch(2, 1);

    const auto addRow = [form](int row, const QString &name,
                            QWidget *choice, const QString &help,
                            bool isUsable = true) {
        //! [form]
        auto *caption = new TavikLabel(name);
        caption->setIndent(0);
        caption->setEnabled(isUsable);
        choice->setEnabled(isUsable);
        form->addWidget(caption, row, 0);
        form->addWidget(choice, row, 1);
        form->addWidget(
            new TavikLabel(help, TavikLabel::Assist), row, 2);
        //! [form]
    };
    addRow(0, tr("Format"), choice("SVG", "PNG"),
        tr("SVG stays sharp at every size"));
    addRow(1, tr("Ground"), choice(tr("White"), tr("None")),
        tr("None lets the page show through"));
    addRow(2, tr("Resolution"),
        choice(tr("Screen"), tr("Print")), tr("Only for PNG"),
        false);
    return widget;
}
