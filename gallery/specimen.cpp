#include "specimen.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QMouseEvent>

namespace {

void hover(QWidget *control)
{
    control->setAttribute(Qt::WA_UnderMouse);
    // Being under the pointer is not enough for a button: it waits for a move.
    QMouseEvent move(QEvent::MouseMove, control->rect().center(), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(control, &move);
}

void press(QWidget *control)
{
    hover(control);
    if (auto *button = qobject_cast<QAbstractButton *>(control))
        button->setDown(true);
}

void check(QWidget *control)
{
    if (auto *button = qobject_cast<QAbstractButton *>(control)) {
        button->setCheckable(true);
        button->setChecked(true);
    }
}

} // namespace

QString Specimen::stateName(State state)
{
    switch (state) {
    case State::Rest:
        return QCoreApplication::translate("Specimen", "Rest");
    case State::Hover:
        return QCoreApplication::translate("Specimen", "Hover");
    case State::Pressed:
        return QCoreApplication::translate("Specimen", "Pressed");
    case State::Checked:
        return QCoreApplication::translate("Specimen", "Checked");
    case State::Disabled:
        return QCoreApplication::translate("Specimen", "Disabled");
    }
    return {};
}

void Specimen::hold(QWidget *control, State state)
{
    if (state == State::Rest)
        return;
    // The real pointer and the keyboard would take the control out of its state.
    control->setAttribute(Qt::WA_TransparentForMouseEvents);
    control->setFocusPolicy(Qt::NoFocus);
    if (state == State::Hover)
        hover(control);
    if (state == State::Pressed)
        press(control);
    if (state == State::Checked)
        check(control);
    control->setEnabled(state != State::Disabled);
}
