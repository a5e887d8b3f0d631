#ifndef TAVIK_ACCESSIBLEPANEL_P_H
#define TAVIK_ACCESSIBLEPANEL_P_H

#include <QAccessibleWidget>

#include <memory>

class PanelTitle;
class TavikExpandable;

/// Tells an expandable panel: named by its title, open or closed, with an action that toggles it.
class AccessiblePanel : public QAccessibleWidget
{
public:
    AccessiblePanel(TavikExpandable *panel, std::unique_ptr<PanelTitle> title);
    ~AccessiblePanel() override;

    QString text(QAccessible::Text type) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

private:
    std::unique_ptr<PanelTitle> m_title;
    QObject m_context; // ends its connection
};

#endif
