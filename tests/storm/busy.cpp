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

} // namespace

bool Busy::needs(const QWidget *widget)
{
    const auto goesOnIn = [&](const Mark &mark) {
        const QObject *object = mark.object;
        const bool isButton =
            qobject_cast<const QPushButton *>(object) || qobject_cast<const TavikButtonGroup *>(object);
        if (isButton && mark.survival == Buttons)
            return false;
        // A sampler has no parent, and answers the popup that has opened it.
        const bool isSampler = object && object->inherits("Screenshot");
        return isInside(object, widget) || (isSampler && qobject_cast<const TavikColorPopup *>(widget));
    };
    return std::any_of(marks().begin(), marks().end(), goesOnIn);
}

std::vector<Busy::Mark> &Busy::marks()
{
    static std::vector<Mark> marks;
    return marks;
}
