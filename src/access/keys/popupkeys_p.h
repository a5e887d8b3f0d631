#ifndef TAVIK_POPUPKEYS_P_H
#define TAVIK_POPUPKEYS_P_H

#include "access/keys/controlkeys_p.h"

#include <memory>

class PopupParts;
class TavikColorPopup;

/// Begins a popup's round of focus at its square, and gives keys to the samplers that it opens.
class PopupKeys : public ControlKeys
{
    Q_OBJECT

public:
    PopupKeys(TavikColorPopup *popup, std::unique_ptr<PopupParts> parts);
    ~PopupKeys() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    std::unique_ptr<PopupParts> m_parts;
};

#endif
