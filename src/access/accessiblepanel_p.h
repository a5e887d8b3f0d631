#ifndef TAVIK_ACCESSIBLEPANEL_P_H
#define TAVIK_ACCESSIBLEPANEL_P_H

#include <QAccessibleWidget>

class TavikExpandable;

/// Tells an expandable panel: named by its title, open or closed, with an action that toggles it.
class AccessiblePanel : public QAccessibleWidget
{
public:
    explicit AccessiblePanel(TavikExpandable *panel);
    ~AccessiblePanel() override;

    QString text(QAccessible::Text type) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

private:
    TavikExpandable *panel() const;

    QMetaObject::Connection m_toggled;
};

#endif
