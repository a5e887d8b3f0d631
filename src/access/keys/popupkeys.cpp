#include "access/keys/popupkeys_p.h"

#include "access/keys/samplerkeys_p.h"
#include "color/popupparts_p.h"
#include "color/sampling_p.h"
#include "color/screenshot_p.h"
#include "color/tavikcolorpopup.h"

#include <QEvent>

PopupKeys::PopupKeys(TavikColorPopup *popup, std::unique_ptr<PopupParts> parts)
    : ControlKeys(popup)
    , m_parts(std::move(parts))
{
    connect(m_parts->sampling(), &Sampling::started, this,
            [](Screenshot *sampler) { new SamplerKeys(sampler); });
}

PopupKeys::~PopupKeys() = default;

bool PopupKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent() && event->type() == QEvent::Show)
        m_parts->square()->setFocus(Qt::PopupFocusReason);
    return false;
}
