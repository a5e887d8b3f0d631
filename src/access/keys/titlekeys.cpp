#include "access/keys/titlekeys_p.h"

#include "containers/paneltitle_p.h"
#include "containers/tavikexpandable.h"

#include <QKeyEvent>

TitleKeys::TitleKeys(TavikExpandable *panel, std::unique_ptr<PanelTitle> title)
    : ControlKeys(panel)
    , m_panel(panel)
    , m_title(std::move(title))
{
    panel->setFocusPolicy(Qt::TabFocus);
    m_title->arrow()->setFocusPolicy(Qt::NoFocus);
    connect(panel, &TavikExpandable::remExpandHeightChanged, this, &TitleKeys::updateContent);
    updateContent();
}

TitleKeys::~TitleKeys() = default;

QWidget *TitleKeys::marked() const
{
    return m_title->widget(0);
}

bool TitleKeys::press(const QKeyEvent &key)
{
    if (key.key() != Qt::Key_Space && key.key() != Qt::Key_Return && key.key() != Qt::Key_Enter)
        return false;
    if (!key.isAutoRepeat())
        m_title->press(0);
    return true;
}

/// A closed panel only cuts its content off, and the focus would go on through what nobody sees.
void TitleKeys::updateContent()
{
    QWidget *content = m_title->content();
    QSizePolicy policy = content->sizePolicy();
    policy.setRetainSizeWhenHidden(true); // the panel is as wide closed as open
    content->setSizePolicy(policy);
    content->setVisible(m_title->isExpanded() || m_panel->remExpandHeight() > 0.0);
}
