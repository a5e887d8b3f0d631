#include "accessiblecolorbutton_p.h"

#include "colorname_p.h"
#include "tavikcolorbutton.h"

namespace {

void announce(TavikColorButton *button)
{
    QAccessibleEvent event(button, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}

} // namespace

AccessibleColorButton::AccessibleColorButton(TavikColorButton *button)
    : QAccessibleWidget(button, QAccessible::Button)
    , m_changed(
          QObject::connect(button, &TavikColorButton::colorChanged, button, [button] { announce(button); }))
{
}

AccessibleColorButton::~AccessibleColorButton()
{
    QObject::disconnect(m_changed);
}

QString AccessibleColorButton::text(QAccessible::Text type) const
{
    const QString text = QAccessibleWidget::text(type);
    if (type != QAccessible::Name)
        return text;
    return tr("%1, %2").arg(text.isEmpty() ? tr("Color") : text, ColorName::of(button()->currentColor()));
}

QAccessible::State AccessibleColorButton::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.pressed = button()->isDown();
    return state;
}

QStringList AccessibleColorButton::actionNames() const
{
    return QStringList(pressAction()) << QAccessibleWidget::actionNames();
}

void AccessibleColorButton::doAction(const QString &name)
{
    if (name == pressAction())
        button()->click();
    else
        QAccessibleWidget::doAction(name);
}

TavikColorButton *AccessibleColorButton::button() const
{
    return static_cast<TavikColorButton *>(widget());
}
