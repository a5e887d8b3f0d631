#include "access/keys/keyboardfilter_p.h"

#include "access/keys/controlkeys_p.h"
#include "access/keys/focusmark_p.h"

#include <QKeyEvent>
#include <QWidget>

namespace {

/// A key that may as well belong to a click.
bool isModifier(int key)
{
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_Meta;
}

template <typename Keys>
bool has(const QWidget *control)
{
    return control->findChild<Keys *>(QString(), Qt::FindDirectChildrenOnly);
}

} // namespace

KeyboardFilter::KeyboardFilter(QWidget *root, void (*giveKeys)(QWidget *))
    : QObject(root)
    , m_giveKeys(giveKeys)
{
    // The root may outlive the library, this object must not.
    connect(FocusMark::install(), &QObject::destroyed, this, [this] { delete this; });
    cover(root);
}

bool KeyboardFilter::covers(const QWidget *widget)
{
    for (; widget; widget = widget->parentWidget()) {
        if (has<KeyboardFilter>(widget))
            return true;
    }
    return false;
}

bool KeyboardFilter::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ChildAdded:
    case QEvent::ChildPolished: {
        QObject *child = static_cast<QChildEvent *>(event)->child();
        // It may be added in the middle of its constructor, but is not polished before the end of it.
        if (child->isWidgetType() && static_cast<QWidget *>(child)->testAttribute(Qt::WA_WState_Polished))
            cover(static_cast<QWidget *>(child));
        break;
    }
    case QEvent::KeyPress:
        if (!isModifier(static_cast<QKeyEvent *>(event)->key()))
            FocusMark::setKeysInUse(true);
        break;
    case QEvent::MouseButtonPress:
        FocusMark::setKeysInUse(false);
        break;
    default:
        break;
    }
    return false;
}

void KeyboardFilter::cover(QWidget *widget)
{
    widget->installEventFilter(this); // a second time it moves to the front, and stays alone
    if (!has<ControlKeys>(widget))
        m_giveKeys(widget);
    for (QObject *child : widget->children()) {
        if (child->isWidgetType())
            cover(static_cast<QWidget *>(child));
    }
}
