#ifndef TAVIK_ACCESSIBLEBUTTON_P_H
#define TAVIK_ACCESSIBLEBUTTON_P_H

#include <QAccessibleWidget>

class QAbstractButton;

/// Tells a button with a press action, as the toolkit's own does, whose class is not public.
class AccessibleButton : public QAccessibleWidget
{
public:
    explicit AccessibleButton(QAbstractButton *button);

    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

private:
    QAbstractButton *button() const;
};

#endif
