#include "color/paletteparts_p.h"

#include "buttons/tavikbutton.h"
#include "color/colorname_p.h"
#include "color/tavikcolorwell.h"

PaletteParts::PaletteParts(TavikColorWell *well)
    : m_well(well)
{
}

int PaletteParts::count() const
{
    return m_well->m_rects.size();
}

int PaletteParts::columns() const
{
    return TavikColorWell::columns;
}

QRect PaletteParts::rect(int part) const
{
    return m_well->m_rects.at(part);
}

QString PaletteParts::name(int part) const
{
    return isButton(part) ? m_well->m_addButton->accessibleName()
                          : ColorName::of(m_well->m_colors.at(part));
}

QWidget *PaletteParts::widget(int part) const
{
    return isButton(part) ? m_well->m_addButton : nullptr;
}

void PaletteParts::press(int part)
{
    if (isButton(part))
        m_well->m_addButton->click();
    else
        m_well->select(part);
}

bool PaletteParts::isButton(int part) const
{
    return part == TavikColorWell::colorCount;
}
