#include "color/popupparts_p.h"

#include "color/popupcontrols_p.h"
#include "color/sampling_p.h"
#include "color/tavikcolorpicker.h"
#include "color/tavikcolorpopup.h"

PopupParts::PopupParts(TavikColorPopup *popup)
    : m_popup(popup)
{
}

QWidget *PopupParts::square() const
{
    return m_popup->m_controls->square;
}

const Sampling *PopupParts::sampling() const
{
    return m_popup->m_sampling.get();
}
