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

TavikButton *button(const QString &text, TavikButton::Type type)
{
    auto *button = new TavikButton(text, type);
    button->setRemSize(8, 2.667);
    return button;
}

} // namespace

QWidget *ContainerSpecimens::column()
{
    auto *name = new TavikLineEdit(tr("Name"));
    name->setRemSize(20, 2.667);
    TavikButton *save = button(tr("Save"), TavikButton::Solid);
    //! [column]
    auto *box = new TavikContainer(
        Vertical, "#fdfdfd", "1", "#d3d3d3");
    box->setContentMargin(LenConverter::remToPx(1));
    box->setSpacing(0.667);
    box->addWidget(name);
    box->addWidget(new TavikCheckBox(tr("Show the grid")));
    box->addWidget(save);
    //! [column]
    return Look::row({box});
}

QWidget *ContainerSpecimens::row()
{
    TavikLabel *changes = Look::flush(
        new TavikLabel(tr("Two changes")));
    TavikButton *discard = button(
        tr("Discard"), TavikButton::Outline);
    TavikButton *save = button(tr("Save"), TavikButton::Solid);
    //! [row]
    auto *box = new TavikContainer(
        Horizontal, "#fdfdfd", "1", "#d3d3d3");
    box->setContentMargin(LenConverter::remToPx(1));
    box->setSpacing(0.667);
    box->setRemSize(40, 5);
    box->addWidget(changes);
    box->addStretch();
    box->addWidget(discard);
    box->addWidget(save);
    //! [row]
    return Look::row({box});
}

QWidget *ContainerSpecimens::openPanel()
{
    //! [openPanel]
    auto *shadow = new TavikExpandable(tr("Shadow"), 12, true);
    //! [openPanel]
    return filled(shadow, tr("Made open"));
}

QWidget *ContainerSpecimens::closedPanel()
{
    //! [closedPanel]
    auto *shadow = new TavikExpandable(tr("Shadow"), 12, false);
    //! [closedPanel]
    return filled(shadow, tr("Made closed"));
}

QWidget *ContainerSpecimens::filled(
    TavikExpandable *shadow, const QString &name)
{
    auto *form = new QGridLayout;
    form->setHorizontalSpacing(LenConverter::remToPx(Look::Gap));
    form->setVerticalSpacing(
        LenConverter::remToPx(Look::SmallGap));
    const int margin = LenConverter::remToPx(1.333);
    form->setContentsMargins(
        margin, LenConverter::remToPx(1), margin, 0);
    form->setColumnStretch(1, 1);
    auto *radius = new TavikSpinbox(0, 40);
    radius->setRemSize(10, 2.667);
    form->addWidget(
        Look::flush(new TavikLabel(tr("Opacity"))), 0, 0);
    form->addWidget(new TavikSlider(14.0, 3), 0, 1);
    form->addWidget(
        Look::flush(new TavikLabel(tr("Radius"))), 1, 0);
    form->addWidget(radius, 1, 1);
    form->addWidget(
        new TavikCheckBox(tr("Behind the text too")), 2, 1);
    auto *report = new Report(30);

    //! [openPanel]
    shadow->setRemWidth(36);
    shadow->addLayout(form);
    //! [openPanel]
    QObject::connect(shadow, &TavikExpandable::animationStarted,
        report, [=] { report->tell("animationStarted"); });
    QObject::connect(shadow,
        &TavikExpandable::remExpandHeightChanged, report, [=] {
            report->tell("remExpandHeightChanged",
                QString::number(
                    shadow->remExpandHeight(), 'f', 2));
        });
    //! [closedPanel]
    QObject::connect(shadow, &TavikExpandable::animationFinished,
        report, [=] { report->tell("animationFinished"); });
    //! [closedPanel]
    return Look::row({Look::live(name, shadow, report)});
}

QWidget *ContainerSpecimens::scrollArea()
{
    //! [scrollArea]
    auto *area = new TavikScrollArea;
    //! [scrollArea]
    return filled(area);
}

QWidget *ContainerSpecimens::colouredScrollArea()
{
    //! [colouredScrollArea]
    auto *area = new TavikScrollArea("2", "#08a274", "#f0faf6");
    //! [colouredScrollArea]
    return filled(area);
}

QWidget *ContainerSpecimens::filled(TavikScrollArea *area)
{
    auto *layers = new QWidget;
    auto *layout = new QVBoxLayout(layers);
    layout->setSpacing(LenConverter::remToPx(0.667));
    for (int i = 1; i <= 20; ++i)
        layout->addWidget(
            new TavikCheckBox(tr("Layer %1").arg(i)));
    //! [scrollArea]
    area->setRemSz(20, 180); // rem, pixels
    area->setWidgetResizable(true);
    area->setWidget(layers);
    //! [colouredScrollArea]
    // Or it hides the area's ground.
    layers->setAutoFillBackground(false);
    //! [colouredScrollArea]
    //! [scrollArea]
    auto *report = new Report(20);
    report->follow(area->verticalScrollBar(),
        &QScrollBar::valueChanged, "valueChanged");
    return Look::row(
        {Look::live(tr("20 rem by 180 pixels"), area, report)});
}
