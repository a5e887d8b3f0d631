#include "access/accessiblecolorbutton_p.h"

#include "access/colorname_p.h"
#include "color/tavikcolorbutton.h"

namespace {

void announce(TavikColorButton *button)
{
    QAccessibleEvent event(button, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}

} // namespace

AccessibleColorButton::AccessibleColorButton(TavikColorButton *button)
    : AccessibleButton(button)
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
    const QString text = AccessibleButton::text(type);
    if (type != QAccessible::Name)
        return text;
    const QColor color = static_cast<TavikColorButton *>(widget())->currentColor();
    return tr("%1, %2").arg(text.isEmpty() ? tr("Color") : text, ColorName::of(color));
}
