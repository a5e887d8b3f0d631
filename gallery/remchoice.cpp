#include "remchoice.h"

#include "look.h"

#include <QGridLayout>

#include <Tavik/TavikButton>
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
{
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(LenConverter::iniRemToPx(6));
    layout->setVerticalSpacing(LenConverter::iniRemToPx(2));
    layout->addWidget(Look::flush(new TavikLabel(tr("1 rem ="))), 0, 0);
    layout->addWidget(Look::flush(new TavikLabel(tr("Screen"), TavikLabel::Assist)), 1, 0);
    for (const Choice &choice : choices) {
        const QString screens = QString::fromUtf8(choice.screens);
        const int column = layout->columnCount();
        layout->addWidget(remButton(choice.rem, screens), 0, column);
        layout->addWidget(Look::flush(new TavikLabel(screens, TavikLabel::Assist)), 1, column,
                          Qt::AlignHCenter);
    }
}

QWidget *RemChoice::remButton(int rem, const QString &screens)
{
    auto *button = new TavikButton(tr("%1 px").arg(rem), TavikButton::Toggle);
    button->setRemSize(5.667, 2.333);
    button->setBorderRadius(LenConverter::iniRemToStrPx(4));
    button->updateStyleSheet();
    button->setToolTip(tr("One rem is %1 pixels on screens %2 pixels wide").arg(rem).arg(screens));
    button->setAutoExclusive(true);
    button->setChecked(rem == LenConverter::rem());
    connect(button, &QPushButton::toggled, this, [this, rem](bool isChecked) {
        if (isChecked)
            Q_EMIT remChosen(rem);
    });
    if (button->isChecked())
        setFocusProxy(button);
    return button;
}
