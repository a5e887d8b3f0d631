#ifndef TAVIK_ACCESSIBLEPART_P_H
#define TAVIK_ACCESSIBLEPART_P_H

#include <QAccessible>

class AccessibleParts;

/// Tells one painted part of a control: a button with a press action, or a handle with a value.
class AccessiblePart : public QAccessibleInterface,
                       public QAccessibleActionInterface,
                       public QAccessibleValueInterface
{
public:
    AccessiblePart(AccessibleParts *owner, int part);

    void *interface_cast(QAccessible::InterfaceType type) override;
    bool isValid() const override;
    QObject *object() const override;
    QWindow *window() const override;
    QAccessibleInterface *parent() const override;
    QAccessibleInterface *child(int index) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text type) const override;
    void setText(QAccessible::Text type, const QString &text) override;

    QStringList actionNames() const override;
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString &name) const override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant &value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

protected:
    AccessibleParts *const m_owner;
    const int m_part;
};

#endif
