#include "access/popupkeys_p.h"

#include "access/samplerkeys_p.h"
#include "buttons/tavikbutton.h"
#include "color/screenshot_p.h"
#include "color/tavikcolorpicker.h"
#include "color/tavikcolorpopup.h"

#include <QEvent>

PopupKeys::PopupKeys(TavikColorPopup *popup)
    : QObject(popup)
{
    popup->installEventFilter(this);
    // Connected after the popup's own slot, which has made the sampler by then.
    connect(popup->m_pickButton, &QAbstractButton::clicked, popup, [popup] {
        if (popup->m_screenshot)
            new SamplerKeys(popup->m_screenshot);
    });
}

bool PopupKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent() && event->type() == QEvent::Show)
        popup()->m_picker->setFocus(Qt::PopupFocusReason);
    return false;
}

TavikColorPopup *PopupKeys::popup() const
{
    return static_cast<TavikColorPopup *>(parent());
}
