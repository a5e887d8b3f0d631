#include "color/colorname_p.h"

#include <QColor>

QString ColorName::of(const QColor &color)
{
    if (color.alpha() == 255)
        return color.name();
    return tr("%1, alpha %2 %").arg(color.name()).arg(qRound(color.alphaF() * 100));
}
