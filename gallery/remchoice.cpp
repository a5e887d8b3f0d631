#include "remchoice.h"

#include "look.h"

#include <QGridLayout>

#include <Tavik/LenConverter>
#include <Tavik/TavikButton>
#include <Tavik/TavikButtonGroup>
#include <Tavik/TavikLabel>

namespace {

struct Choice
{
    int rem;
    const char *screens;
};

// The width of the screens that get this many pixels per rem.
const Choice choices[] = {
    {10, "1366\u20131600"}, {12, "1920"}, {18, "2560"}, {24, "3200"}, {30, "3840"},
};

const QSizeF ButtonSize(6, 2.333);

} // namespace

const QVector<int> &RemChoice::remValues()
{
    static const QVector<int> values = [] {
        QVector<int> result;
        for (const Choice &choice : choices)
            result.append(choice.rem);
        return result;
    }();
    return values;
}

RemChoice::RemChoice(QWidget *parent)
    : QWidget(parent)
    , m_group(new TavikButtonGroup(Horizontal, 1.167, ButtonSize))
{
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(0);
    layout->setVerticalSpacing(LenConverter::iniRemToPx(2));
    layout->addWidget(Look::flush(new TavikLabel(tr("1 rem ="))), 0, 0);
    layout->addWidget(Look::flush(new TavikLabel(tr("Screen"), TavikLabel::Assist)), 1, 0);
    layout->setColumnMinimumWidth(0, LenConverter::remToPx(5));
    for (const Choice &choice : choices)
        addChoice(layout, choice.rem, QString::fromUtf8(choice.screens));
    layout->addWidget(m_group, 0, 1, 1, layout->columnCount() - 1);
    connect(m_group, &TavikButtonGroup::buttonClicked, this,
            [this](int id) { Q_EMIT remChosen(remValues().at(id)); });
}

void RemChoice::addChoice(QGridLayout *layout, int rem, const QString &screens)
{
    TavikButton *button = m_group->addTextButton(tr("%1 px").arg(rem));
    button->setToolTip(tr("One rem is %1 pixels on screens %2 pixels wide").arg(rem).arg(screens));
    if (rem == LenConverter::rem()) {
        button->setChecked(true);
        setFocusProxy(button);
    }
    auto *label = Look::flush(new TavikLabel(screens, TavikLabel::Assist));
    layout->addWidget(label, 1, layout->columnCount(), Qt::AlignHCenter);
    layout->setColumnMinimumWidth(layout->columnCount() - 1, button->width());
}
