#include "access/screenreader/accessiblecolorbutton_p.h"

#include "color/colorname_p.h"
#include "color/tavikcolorbutton.h"

AccessibleColorButton::AccessibleColorButton(TavikColorButton *button)
    : AccessibleButton(button)
{
    QObject::connect(button, &TavikColorButton::colorChanged, &m_context, [button] {
        QAccessibleEvent event(button, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&event);
    });
}

QString AccessibleColorButton::text(QAccessible::Text type) const
{
    const QString text = AccessibleButton::text(type);
    if (type != QAccessible::Name)
        return text;
    const QColor color = static_cast<TavikColorButton *>(widget())->currentColor();
    return tr("%1, %2").arg(text.isEmpty() ? tr("Color") : text, ColorName::of(color));
}
