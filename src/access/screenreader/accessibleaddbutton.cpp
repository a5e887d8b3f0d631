#include "access/screenreader/accessibleaddbutton_p.h"

#include <QWidget>

QAccessible::State AccessibleAddButton::state() const
{
    QAccessible::State state = AccessibleButton::state();
    const QAccessibleInterface *palette = parent();
    state.focusable = palette->state().focusable;
    state.focused = palette->focusChild() == this;
    return state;
}
