#include "access/keys/controlkeys_p.h"

#include <QKeyEvent>
#include <QWidget>

ControlKeys::ControlKeys(QWidget *control)
    : QObject(control)
{
    control->installEventFilter(this);
}

QWidget *ControlKeys::marked() const
{
    return control();
}

QWidget *ControlKeys::control() const
{
    return static_cast<QWidget *>(parent());
}

bool ControlKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != parent())
        return false;
    if (event->type() == QEvent::FocusIn)
        enter(*static_cast<QFocusEvent *>(event));
    // Keys also come up from children that had no use for them.
    return event->type() == QEvent::KeyPress && control()->hasFocus() &&
           press(*static_cast<QKeyEvent *>(event));
}
