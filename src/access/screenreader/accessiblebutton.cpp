#include "access/screenreader/accessiblebutton_p.h"

#include <QAbstractButton>

AccessibleButton::AccessibleButton(QAbstractButton *button)
    : QAccessibleWidget(button, QAccessible::Button)
{
}

QAccessible::State AccessibleButton::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.pressed = button()->isDown();
    return state;
}

QStringList AccessibleButton::actionNames() const
{
    return QStringList(pressAction()) << QAccessibleWidget::actionNames();
}

void AccessibleButton::doAction(const QString &name)
{
    if (name == pressAction())
        button()->click();
    else
        QAccessibleWidget::doAction(name);
}

QAbstractButton *AccessibleButton::button() const
{
    return static_cast<QAbstractButton *>(widget());
}
