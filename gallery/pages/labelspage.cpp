#include "labelspage.h"

#include "look.h"
#include "stategrid.h"

#include <QGridLayout>

#include <Tavik/LenConverter>
#include <Tavik/TavikButton>
#include <Tavik/TavikLabel>

namespace {

/// A choice of two, the first of which is chosen.
QWidget *choice(const QString &first, const QString &second, bool isEnabled = true)
{
    QWidget *row = Look::row(
        {new TavikButton(first, TavikButton::Toggle), new TavikButton(second, TavikButton::Toggle)});
    const QList<TavikButton *> buttons = row->findChildren<TavikButton *>();
    for (TavikButton *button : buttons) {
        button->setRemSize(8, 2.333);
        button->setAutoExclusive(true);
    }
    buttons.first()->setChecked(true);
    row->setEnabled(isEnabled);
    return row;
}

TavikLabel *caption(const QString &text, bool isEnabled = true)
{
    TavikLabel *label = Look::flush(new TavikLabel(text));
    label->setEnabled(isEnabled);
    return label;
}

} // namespace

LabelsPage::LabelsPage()
    : Page(tr("A line of text in the library's type sizes and colours, for captions, hints and titles."))
{
    addTypes();
    addLook();
    addForm();
}

void LabelsPage::addTypes()
{
    using Specimen::State;
    auto *grid = new StateGrid({State::Rest, State::Disabled});
    grid->addRow(QStringLiteral("Default"), [] { return Look::flush(new TavikLabel(tr("Opacity"))); });
    grid->addRow(QStringLiteral("Assist"),
                 [] { return Look::flush(new TavikLabel(tr("In per cent"), TavikLabel::Assist)); });
    addExample(Half, tr("Types"),
               tr("Default is for ordinary text. Assist is smaller and paler, for what only helps."), grid,
               QStringLiteral("new TavikLabel(tr(\"Opacity\"), this);\n"
                              "new TavikLabel(tr(\"In per cent\"),\n"
                              "               TavikLabel::Assist, this);"));
}

void LabelsPage::addLook()
{
    TavikLabel *title = Look::flush(new TavikLabel(tr("Total")));
    title->setFontRemSz(1.667);
    auto *sum = new TavikLabel(QStringLiteral("128.50"));
    sum->setFontRemSz(1.667);
    sum->setColor(QStringLiteral("#08a274"));
    addExample(Half, tr("Size and colour"),
               tr("Both setters restyle the label at once. The size is in rem."), Look::row({title, sum}),
               QStringLiteral("auto *sum = new TavikLabel(\"128.50\", this);\n"
                              "sum->setFontRemSz(1.667);\n"
                              "sum->setColor(\"#08a274\");"));
}

void LabelsPage::addForm()
{
    addExample(Whole, tr("In a form"),
               tr("Captions at the left, hints at the right. What can't be used now is disabled together "
                  "with its caption."),
               buildForm(),
               QStringLiteral("form->addWidget(new TavikLabel(tr(\"Format\")), 0, 0);\n"
                              "form->addWidget(formats, 0, 1);\n"
                              "form->addWidget(new TavikLabel(tr(\"SVG stays sharp at every size\"), "
                              "TavikLabel::Assist), 0, 2);"));
}

QWidget *LabelsPage::buildForm()
{
    auto *form = new QWidget;
    auto *layout = new QGridLayout(form);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(LenConverter::remToPx(Look::Gap));
    layout->setVerticalSpacing(LenConverter::remToPx(Look::SmallGap));
    layout->setColumnMinimumWidth(0, LenConverter::remToPx(8));
    layout->setColumnStretch(2, 1);

    layout->addWidget(caption(tr("Format")), 0, 0);
    layout->addWidget(choice(QStringLiteral("SVG"), QStringLiteral("PNG")), 0, 1);
    layout->addWidget(new TavikLabel(tr("SVG stays sharp at every size"), TavikLabel::Assist), 0, 2);
    layout->addWidget(caption(tr("Ground")), 1, 0);
    layout->addWidget(choice(tr("White"), tr("None")), 1, 1);
    layout->addWidget(new TavikLabel(tr("None lets the page show through"), TavikLabel::Assist), 1, 2);
    layout->addWidget(caption(tr("Resolution"), false), 2, 0);
    layout->addWidget(choice(tr("Screen"), tr("Print"), false), 2, 1);
    layout->addWidget(new TavikLabel(tr("Only for PNG"), TavikLabel::Assist), 2, 2);
    return form;
}
