#include "containerspecimens.h"

#include "look.h"
#include "report.h"

#include <QGridLayout>
#include <QScrollBar>
#include <QVBoxLayout>

#include <Tavik/TavikButton>
#include <Tavik/TavikCheckBox>
#include <Tavik/TavikContainer>
#include <Tavik/TavikExpandable>
#include <Tavik/TavikLineEdit>
#include <Tavik/TavikScrollArea>
#include <Tavik/TavikSlider>
#include <Tavik/TavikSpinbox>

namespace {

TavikContainer *box(Direction direction)
{
    auto *box = new TavikContainer(direction, QStringLiteral("#fdfdfd"), QStringLiteral("1"),
                                   QStringLiteral("#d3d3d3"));
    box->setContentMargin(LenConverter::remToPx(1));
    box->setSpacing(0.667);
    return box;
}

TavikButton *button(const QString &text, TavikButton::Type type)
{
    auto *button = new TavikButton(text, type);
    button->setRemSize(8, 2.667);
    return button;
}

/// A list that is too long for its area, with what the area's bar reports.
QWidget *live(TavikScrollArea *area, const QString &size)
{
    auto *list = new QWidget;
    auto *layout = new QVBoxLayout(list);
    layout->setSpacing(LenConverter::remToPx(0.667));
    for (int i = 1; i <= 20; ++i)
        layout->addWidget(new TavikCheckBox(ContainerSpecimens::tr("Layer %1").arg(i)));
    area->setRemSz(20, 180);
    area->setWidgetResizable(true);
    area->setWidget(list);
    // An area fills its widget with the window's colour, and its own would not be seen.
    list->setAutoFillBackground(false);
    auto *report = new Report(20);
    report->follow(area->verticalScrollBar(), &QScrollBar::valueChanged, QStringLiteral("valueChanged"));
    return Look::row({Look::live(size, area, report)});
}

} // namespace

QWidget *ContainerSpecimens::column()
{
    TavikContainer *column = box(Vertical);
    auto *name = new TavikLineEdit(tr("Name"));
    name->setRemSize(20, 2.667);
    column->addWidget(name);
    column->addWidget(new TavikCheckBox(tr("Show the grid")));
    column->addWidget(button(tr("Save"), TavikButton::Solid));
    return Look::row({column});
}

QWidget *ContainerSpecimens::row()
{
    TavikContainer *row = box(Horizontal);
    row->setRemSize(40, 5);
    row->addWidget(Look::flush(new TavikLabel(tr("Two changes"))));
    row->addStretch();
    row->addWidget(button(tr("Discard"), TavikButton::Outline));
    row->addWidget(button(tr("Save"), TavikButton::Solid));
    return Look::row({row});
}

QWidget *ContainerSpecimens::expandable(bool isOpen)
{
    auto *form = new QGridLayout;
    form->setHorizontalSpacing(LenConverter::remToPx(Look::Gap));
    form->setVerticalSpacing(LenConverter::remToPx(Look::SmallGap));
    const int margin = LenConverter::remToPx(1.333);
    form->setContentsMargins(margin, LenConverter::remToPx(1), margin, 0);
    form->setColumnStretch(1, 1);
    auto *radius = new TavikSpinbox(0, 40);
    radius->setRemSize(10, 2.667);
    form->addWidget(Look::flush(new TavikLabel(tr("Opacity"))), 0, 0);
    form->addWidget(new TavikSlider(14.0, 3), 0, 1);
    form->addWidget(Look::flush(new TavikLabel(tr("Radius"))), 1, 0);
    form->addWidget(radius, 1, 1);
    form->addWidget(new TavikCheckBox(tr("Behind the text too")), 2, 1);

    auto *panel = new TavikExpandable(tr("Shadow"), 12, isOpen);
    panel->setRemWidth(36);
    panel->addLayout(form);
    auto *report = new Report(30);
    QObject::connect(panel, &TavikExpandable::animationStarted, report,
                     [=] { report->tell(QStringLiteral("animationStarted")); });
    QObject::connect(panel, &TavikExpandable::remExpandHeightChanged, report, [=] {
        report->tell(QStringLiteral("remExpandHeightChanged"),
                     QString::number(panel->remExpandHeight(), 'f', 2));
    });
    QObject::connect(panel, &TavikExpandable::animationFinished, report,
                     [=] { report->tell(QStringLiteral("animationFinished")); });
    return Look::row({Look::live(isOpen ? tr("Made open") : tr("Made closed"), panel, report)});
}

QWidget *ContainerSpecimens::scrollArea()
{
    return live(new TavikScrollArea, tr("20 rem by 180 pixels"));
}

QWidget *ContainerSpecimens::colouredScrollArea()
{
    auto *area =
        new TavikScrollArea(QStringLiteral("2"), QStringLiteral("#08a274"), QStringLiteral("#f0faf6"));
    return live(area, tr("20 rem by 180 pixels"));
}
