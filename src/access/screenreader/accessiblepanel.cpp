#include "access/screenreader/accessiblepanel_p.h"

#include "containers/paneltitle_p.h"
#include "containers/tavikexpandable.h"

AccessiblePanel::AccessiblePanel(TavikExpandable *panel, std::unique_ptr<PanelTitle> title)
    : QAccessibleWidget(panel, QAccessible::Grouping)
    , m_title(std::move(title))
{
    m_title->follow(&m_context, [panel](int) {
        QAccessible::State changed;
        changed.expanded = true;
        changed.collapsed = true;
        QAccessibleStateChangeEvent event(panel, changed);
        QAccessible::updateAccessibility(&event);
    });
}

AccessiblePanel::~AccessiblePanel() = default;

QString AccessiblePanel::text(QAccessible::Text type) const
{
    const QString text = QAccessibleWidget::text(type);
    return type == QAccessible::Name && text.isEmpty() ? m_title->name(0) : text;
}

QAccessible::State AccessiblePanel::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.expandable = true;
    state.expanded = m_title->isExpanded();
    state.collapsed = !state.expanded;
    return state;
}

QStringList AccessiblePanel::actionNames() const
{
    return QAccessibleWidget::actionNames() << toggleAction();
}

void AccessiblePanel::doAction(const QString &name)
{
    if (name == toggleAction())
        m_title->press(0);
    else
        QAccessibleWidget::doAction(name);
}
