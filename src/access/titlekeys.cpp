#include "access/titlekeys_p.h"

#include "access/panelparts_p.h"

#include <QKeyEvent>

TitleKeys::TitleKeys(TavikExpandable *panel)
    : ControlKeys(panel)
{
    panel->setFocusPolicy(Qt::TabFocus);
    PanelParts::arrow(panel)->setFocusPolicy(Qt::NoFocus);
    connect(panel, &TavikExpandable::remExpandHeightChanged, this, &TitleKeys::updateContent);
    updateContent();
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

/// A closed panel only cuts its content off, and the focus would go on through what nobody sees.
void TitleKeys::updateContent()
{
    QWidget *content = PanelParts::content(panel());
    QSizePolicy policy = content->sizePolicy();
    policy.setRetainSizeWhenHidden(true); // the panel is as wide closed as open
    content->setSizePolicy(policy);
    content->setVisible(PanelParts::isExpanded(panel()) || panel()->remExpandHeight() > 0.0);
}

TavikExpandable *TitleKeys::panel() const
{
    return static_cast<TavikExpandable *>(control());
}
