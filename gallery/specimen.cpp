#include "specimen.h"

#include <QAbstractButton>
#include <QAbstractEventDispatcher>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDial>
#include <QMouseEvent>

namespace {

/// Where a pointer does something: on the upper step button, on the arrow, on a handle that stands in the
/// middle.
QPoint livePoint(const QWidget *control)
{
    const QRect area = control->rect();
    if (qobject_cast<const QAbstractSpinBox *>(control))
        return {area.right() - area.height() / 4, area.height() / 4};
    if (qobject_cast<const QComboBox *>(control))
        return {area.right() - area.height() / 4, area.height() / 2};
    if (qobject_cast<const QDial *>(control))
        return {area.center().x(), area.height() / 5};
    return area.center();
}

void hover(QWidget *control)
{
    control->setAttribute(Qt::WA_UnderMouse);
    const QPoint point = livePoint(control);
    // Being under the pointer is not enough for a button, which waits for a move, nor for a control of
    // several parts, which asks where the pointer is.
    const QPoint onScreen = control->mapToGlobal(point);
    QMouseEvent move(QEvent::MouseMove, point, onScreen, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(control, &move);
#if QT_VERSION < QT_VERSION_CHECK(6, 3, 0)
    QHoverEvent enter(QEvent::HoverEnter, point, QPoint(-1, -1));
#else
    QHoverEvent enter(QEvent::HoverEnter, point, onScreen, QPoint(-1, -1));
#endif
    QCoreApplication::sendEvent(control, &enter);
}

void press(QWidget *control)
{
    hover(control);
    if (auto *button = qobject_cast<QAbstractButton *>(control)) {
        button->setDown(true);
        return;
    }
    const QPoint point = livePoint(control);
    QMouseEvent click(QEvent::MouseButtonPress, point, control->mapToGlobal(point), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(control, &click);
    // A spin box would step on and on by its timers.
    QAbstractEventDispatcher::instance()->unregisterTimers(control);
}

void focus(QWidget *control)
{
    // The keyboard can't be in several places: the rules for focus are made to hold always.
    control->setStyleSheet(control->styleSheet().remove(QStringLiteral(":focus")));
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
    case State::Focus:
        return QCoreApplication::translate("Specimen", "Focus");
    case State::Checked:
        return QCoreApplication::translate("Specimen", "Checked");
    case State::ReadOnly:
        return QCoreApplication::translate("Specimen", "Read-only");
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
    // The points for the pointer are those of its own size.
    control->ensurePolished();
    control->adjustSize();
    if (state == State::Hover)
        hover(control);
    if (state == State::Pressed)
        press(control);
    if (state == State::Focus)
        focus(control);
    if (state == State::Checked)
        check(control);
    if (state == State::ReadOnly)
        control->setProperty("readOnly", true);
    control->setEnabled(state != State::Disabled);
}
