#include "busy.h"

#include <Tavik/Tavik>

#include <QApplication>

#include <algorithm>

namespace {

bool isInside(const QObject *object, const QObject *outer)
{
    while (object && object != outer)
        object = object->parent();
    return object;
}

bool isInPopup(const QObject *object)
{
    while (object && !qobject_cast<const TavikColorPopup *>(object))
        object = object->parent();
    return object;
}

bool isSampler(const QObject *object)
{
    return object && object->inherits("Screenshot");
}

/// A sampler has no parent, and yet calls the popup that has opened it, and is called by it.
bool areTogether(const QObject *object, const QWidget *widget)
{
    return (isSampler(object) && qobject_cast<const TavikColorPopup *>(widget)) ||
           (isInPopup(object) && isSampler(widget));
}

/// Whether it has windows: it is one, or has a list or a menu that pops up.
bool hasWindow(const QWidget *widget)
{
    const QList<QWidget *> children = widget->findChildren<QWidget *>();
    return widget->isWindow() ||
           std::any_of(children.begin(), children.end(), [](QWidget *child) { return child->isWindow(); });
}

/// Whether the toolkit goes on with a widget after this event to an object, without a look whether it is still
/// there. The program `tavik-toolkit-faults` shows each of these with the toolkit's own widgets.
bool toolkitNeeds(const QWidget *widget, const QObject *object, QEvent::Type event)
{
    switch (event) {
    case QEvent::Show: // to a child of a widget that shows or hides all its children
    case QEvent::Hide:
        return isInside(object, widget->parentWidget());
    case QEvent::EnabledChange: // to a button that is held down, which then tells of its release
        return isInside(object, widget);
    case QEvent::FocusOut: // also to a button, which then tells of its release
    case QEvent::FocusIn:
        return isInside(object, widget) || isInside(QApplication::focusWidget(), widget) ||
               hasWindow(widget);
    default:
        return false;
    }
}

} // namespace

bool Busy::needs(const QWidget *widget)
{
    const auto goesOnIn = [&](const Mark &mark) {
        const QObject *object = mark.object;
        if (areTogether(object, widget) || toolkitNeeds(widget, object, mark.event))
            return true;
        const bool isButton =
            qobject_cast<const QPushButton *>(object) || qobject_cast<const TavikButtonGroup *>(object);
        return isInside(object, widget) && !(isButton && mark.survival == Buttons);
    };
    return std::any_of(marks().begin(), marks().end(), goesOnIn);
}

bool Busy::isAnything()
{
    return !marks().empty();
}

bool Busy::isPopupHiding()
{
    return std::any_of(marks().begin(), marks().end(), [](const Mark &mark) {
        const bool isHiding = mark.event == QEvent::Hide || mark.event == QEvent::Close;
        return isHiding && qobject_cast<const TavikColorPopup *>(mark.object.data());
    });
}

std::vector<Busy::Mark> &Busy::marks()
{
    static std::vector<Mark> marks;
    return marks;
}
