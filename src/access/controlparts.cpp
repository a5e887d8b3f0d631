#include "access/controlparts_p.h"

#include "access/gradientparts_p.h"
#include "access/paletteparts_p.h"
#include "color/tavikcolorwell.h"
#include "color/tavikgradientbar.h"

std::unique_ptr<ControlParts> ControlParts::of(QWidget *control)
{
    if (auto *well = qobject_cast<TavikColorWell *>(control))
        return std::make_unique<PaletteParts>(well);
    if (auto *bar = qobject_cast<TavikGradientBar *>(control))
        return std::make_unique<GradientParts>(bar);
    return nullptr;
}

void ControlParts::follow(QObject *, const std::function<void(int)> &) const
{
}
