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
    const auto goesOnIn = [&](const QPointer<QObject> &object) {
        if (qobject_cast<QPushButton *>(object) || qobject_cast<TavikButtonGroup *>(object))
            return false;
        // A sampler has no parent, and answers the popup that has opened it.
        const bool isSampler = object && object->inherits("Screenshot");
        return isInside(object, widget) || (isSampler && qobject_cast<const TavikColorPopup *>(widget));
    };
    return std::any_of(objects().begin(), objects().end(), goesOnIn);
}

std::vector<QPointer<QObject>> &Busy::objects()
{
    static std::vector<QPointer<QObject>> objects;
    return objects;
}
