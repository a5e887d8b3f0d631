#include "busy.h"

#include <Tavik/Tavik>

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

} // namespace

bool Busy::needs(const QWidget *widget)
{
    const auto goesOnIn = [&](const Mark &mark) {
        const QObject *object = mark.object;
        if (areTogether(object, widget))
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
        return mark.isHiding && qobject_cast<const TavikColorPopup *>(mark.object.data());
    });
}

std::vector<Busy::Mark> &Busy::marks()
{
    static std::vector<Mark> marks;
    return marks;
}
