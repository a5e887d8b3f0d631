#include "access/accessiblepanel_p.h"

#include "access/panelparts_p.h"

namespace {

void announce(TavikExpandable *panel)
{
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent event(panel, changed);
    QAccessible::updateAccessibility(&event);
}

} // namespace

AccessiblePanel::AccessiblePanel(TavikExpandable *panel)
    : QAccessibleWidget(panel, QAccessible::Grouping)
    , m_toggled(
          QObject::connect(panel, &TavikExpandable::animationStarted, panel, [panel] { announce(panel); }))
{
}

AccessiblePanel::~AccessiblePanel()
{
    QObject::disconnect(m_toggled);
}

QString AccessiblePanel::text(QAccessible::Text type) const
{
    const QString text = QAccessibleWidget::text(type);
    return type == QAccessible::Name && text.isEmpty() ? PanelParts::title(panel()) : text;
}

QAccessible::State AccessiblePanel::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.expandable = true;
    state.expanded = PanelParts::isExpanded(panel());
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
        PanelParts::arrow(panel())->click();
    else
        QAccessibleWidget::doAction(name);
}

TavikExpandable *AccessiblePanel::panel() const
{
    return static_cast<TavikExpandable *>(widget());
}
