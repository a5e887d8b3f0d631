#include "keyboardfilter_p.h"

#include "partkeys_p.h"
#include "popupkeys_p.h"
#include "squarekeys_p.h"
#include "tavikcolorpicker.h"
#include "tavikcolorpopup.h"
#include "tavikexpandable.h"
#include "titlekeys_p.h"

#include <QChildEvent>
#include <QWidget>

namespace {

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
    // A widget that is added while it is constructed is not yet what it will be; it is polished later.
    if (event->type() == QEvent::ChildAdded || event->type() == QEvent::ChildPolished) {
        QObject *child = static_cast<QChildEvent *>(event)->child();
        if (child->isWidgetType())
            cover(static_cast<QWidget *>(child));
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
