#include "groupspecimens.h"

#include "look.h"
#include "report.h"

#include <QRadioButton>

#include <Tavik/LenConverter>
#include <Tavik/TavikButton>
#include <Tavik/TavikButtonGroup>

namespace {

QWidget *live(const QString &name, TavikButtonGroup *group)
{
    auto *report = new Report;
    report->follow(group, &TavikButtonGroup::buttonClicked,
        "buttonClicked");
    return Look::live(name, group, report);
}

} // namespace

QWidget *GroupSpecimens::bar()
{
    //! [bar]
    auto *align = new TavikButtonGroup(
        Horizontal, 1.167, QSizeF(8, 2.667));
    for (const QString &text :
        {tr("Left"), tr("Centre"), tr("Right"), tr("Justified")})
        align->addTextButton(text);
    align->setCheckedId(0);
    //! [bar]
    return Look::row({live(tr("Alignment"), align)});
}

QWidget *GroupSpecimens::columns()
{
    const auto column = [](double gap) {
        //! [columns]
        // 0 or 0.5 rem
        auto *size = new TavikButtonGroup(Vertical, 1.167,
            QSizeF(8, 2.667), TavikButtonGroup::Exclusive, gap);
        for (const QString &text :
            {tr("Small"), tr("Medium"), tr("Large")})
            size->addTextButton(text);
        size->setCheckedId(1);
        //! [columns]
        return size;
    };
    return Look::row({live(tr("Spacing 0"), column(0)),
        live(tr("Spacing 0.5 rem"), column(0.5))});
}

QWidget *GroupSpecimens::uncheckable()
{
    //! [uncheckable]
    auto *priority = new TavikButtonGroup(
        Horizontal, 1.167, QSizeF(8, 2.667));
    for (const QString &text :
        {tr("Low"), tr("Middle"), tr("High")})
        priority->addTextButton(text);
    priority->setIsUncheckable(true);
    //! [uncheckable]
    return Look::row({live(tr("Priority, if any"), priority)});
}

QWidget *GroupSpecimens::nonExclusive()
{
    //! [nonExclusive]
    auto *style = new TavikButtonGroup(Horizontal, 1.167,
        QSizeF(8, 2.667), TavikButtonGroup::NonExclusive, 0.5);
    for (const QString &text :
        {tr("Bold"), tr("Italic"), tr("Underline")})
        style->addTextButton(text);
    style->setCheckedId(0);
    style->setCheckedId(2);
    //! [nonExclusive]
    return Look::row({live(tr("Style"), style)});
}

QWidget *GroupSpecimens::pictures()
{
    //! [pictures]
    const QSizeF side(2.667, 2.667);
    auto *fill = new TavikButtonGroup(Horizontal, 1.167, side,
        TavikButtonGroup::Exclusive, 0.667);
    fill->setIconRemSz(side);
    for (const QString set :
        {"color", "gradient", "radial_gradient"})
        fill->addIconButton(":/Color/images/" + set)
            ->setIsPaintOverrided(true);
    fill->setCheckedId(0);
    //! [pictures]

    auto *framed = new TavikButtonGroup(
        Horizontal, 1.167, QSizeF(4, 2.667));
    framed->setIconRemSz(QSizeF(1.333, 1.333));
    for (const QString name :
        {"plus", "refresh", "color_picker"})
        framed->addIconButton(
            QIcon(":/Color/images/" + name + ".svg"));
    framed->setCheckedId(0);
    return Look::row({live(tr("Kind of fill"), fill),
        live(tr("Icons of one drawing"), framed)});
}

QWidget *GroupSpecimens::radioButtons()
{
    //! [radioButtons]
    auto *backup = new TavikButtonGroup(Vertical, 1.167,
        QSizeF(8, 2.667), TavikButtonGroup::Exclusive, 1);
    for (const QString &text :
        {tr("Always"), tr("Once a day"), tr("Never")})
        backup->addRadioButton(text);
    backup->setCheckedId(1);
    //! [radioButtons]
    auto *sound = new TavikButtonGroup(Horizontal, 1.167,
        QSizeF(8, 2.667), TavikButtonGroup::Exclusive, 1);
    sound->addRadioButton(tr("On"));
    sound->addRadioButton(tr("Off"));
    sound->setCheckedId(1);
    return Look::row(
        {live(tr("Backup"), backup), live(tr("Sound"), sound)});
}
