#include "groupspecimens.h"

#include "look.h"
#include "report.h"

#include <QRadioButton>

#include <Tavik/LenConverter>
#include <Tavik/TavikButton>
#include <Tavik/TavikButtonGroup>

namespace {

constexpr double FontSize = 1.167;
const QSizeF buttonSize(8, 2.667);

QWidget *live(const QString &name, TavikButtonGroup *group)
{
    auto *report = new Report;
    report->follow(group, &TavikButtonGroup::buttonClicked, QStringLiteral("buttonClicked"));
    return Look::live(name, group, report);
}

TavikButtonGroup *textGroup(Direction direction, const QStringList &texts, double spacing = 0,
                            TavikButtonGroup::Mode mode = TavikButtonGroup::Exclusive)
{
    auto *group = new TavikButtonGroup(direction, FontSize, buttonSize, mode, spacing);
    for (const QString &text : texts)
        group->addTextButton(text);
    return group;
}

} // namespace

QWidget *GroupSpecimens::bar()
{
    TavikButtonGroup *group =
        textGroup(Horizontal, {tr("Left"), tr("Centre"), tr("Right"), tr("Justified")});
    group->setCheckedId(0);
    return Look::row({live(tr("Alignment"), group)});
}

QWidget *GroupSpecimens::columns()
{
    const QStringList sizes{tr("Small"), tr("Medium"), tr("Large")};
    TavikButtonGroup *touching = textGroup(Vertical, sizes);
    touching->setCheckedId(1);
    TavikButtonGroup *apart = textGroup(Vertical, sizes, 0.5);
    apart->setCheckedId(1);
    return Look::row({live(tr("Spacing 0"), touching), live(tr("Spacing 0.5 rem"), apart)});
}

QWidget *GroupSpecimens::uncheckable()
{
    TavikButtonGroup *group = textGroup(Horizontal, {tr("Low"), tr("Middle"), tr("High")});
    group->setIsUncheckable(true);
    return Look::row({live(tr("Priority, if any"), group)});
}

QWidget *GroupSpecimens::nonExclusive()
{
    TavikButtonGroup *group = textGroup(Horizontal, {tr("Bold"), tr("Italic"), tr("Underline")}, 0.5,
                                        TavikButtonGroup::NonExclusive);
    group->setCheckedId(0);
    group->setCheckedId(2);
    return Look::row({live(tr("Style"), group)});
}

QWidget *GroupSpecimens::pictures()
{
    auto *group = new TavikButtonGroup(Horizontal, FontSize, QSizeF(2.667, 2.667),
                                       TavikButtonGroup::Exclusive, 0.667);
    group->setIconRemSz(QSizeF(2.667, 2.667));
    for (const char *set : {"color", "gradient", "radial_gradient"}) {
        const QString path = QStringLiteral(":/Color/images/") + QLatin1String(set);
        group->addIconButton(path)->setIsPaintOverrided(true);
    }
    group->setCheckedId(0);

    auto *framed = new TavikButtonGroup(Horizontal, FontSize, QSizeF(4, 2.667));
    framed->setIconRemSz(QSizeF(1.333, 1.333));
    for (const char *name : {"plus", "refresh", "color_picker"})
        framed->addIconButton(QIcon(QStringLiteral(":/Color/images/%1.svg").arg(QLatin1String(name))));
    framed->setCheckedId(0);
    return Look::row({live(tr("Kind of fill"), group), live(tr("Icons of one drawing"), framed)});
}

QWidget *GroupSpecimens::radioButtons()
{
    const auto radioGroup = [](Direction direction, const QStringList &texts) {
        auto *group = new TavikButtonGroup(direction, FontSize, buttonSize, TavikButtonGroup::Exclusive, 1);
        for (const QString &text : texts)
            group->addRadioButton(text);
        group->setCheckedId(1);
        return group;
    };
    return Look::row(
        {live(tr("Backup"), radioGroup(Vertical, {tr("Always"), tr("Once a day"), tr("Never")})),
         live(tr("Sound"), radioGroup(Horizontal, {tr("On"), tr("Off")}))});
}
