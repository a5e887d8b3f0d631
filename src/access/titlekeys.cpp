#include "titlekeys_p.h"

#include "panelparts_p.h"

#include <QKeyEvent>

TitleKeys::TitleKeys(TavikExpandable *panel)
    : ControlKeys(panel)
{
    panel->setFocusPolicy(Qt::TabFocus);
    PanelParts::arrow(panel)->setFocusPolicy(Qt::NoFocus);
}

QWidget *TitleKeys::marked() const
{
    return PanelParts::titleBar(panel());
}

bool TitleKeys::press(const QKeyEvent &key)
{
    if (key.key() != Qt::Key_Space && key.key() != Qt::Key_Return && key.key() != Qt::Key_Enter)
        return false;
    if (!key.isAutoRepeat())
        PanelParts::arrow(panel())->click();
    return true;
}

TavikExpandable *TitleKeys::panel() const
{
    return static_cast<TavikExpandable *>(control());
}
