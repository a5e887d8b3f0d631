#include "access/keyboardfilter_p.h"

#include "access/focusmark_p.h"
#include "access/partkeys_p.h"
#include "access/popupkeys_p.h"
#include "access/squarekeys_p.h"
#include "access/titlekeys_p.h"
#include "color/tavikcolorpicker.h"
#include "color/tavikcolorpopup.h"
#include "containers/tavikexpandable.h"

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

void giveKeys(QWidget *widget)
{
    if (has<ControlKeys>(widget) || has<PopupKeys>(widget))
        return;
    if (auto *square = qobject_cast<TavikColorPicker *>(widget))
        new SquareKeys(square);
    else if (auto *panel = qobject_cast<TavikExpandable *>(widget))
        new TitleKeys(panel);
    else if (auto *popup = qobject_cast<TavikColorPopup *>(widget))
        new PopupKeys(popup);
    else if (auto parts = ControlParts::of(widget))
        new PartKeys(widget, std::move(parts));
}

} // namespace

KeyboardFilter::KeyboardFilter(QWidget *root)
    : QObject(root)
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
    giveKeys(widget);
    for (QObject *child : widget->children()) {
        if (child->isWidgetType())
            cover(static_cast<QWidget *>(child));
    }
}
