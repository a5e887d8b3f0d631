#include "access/accessiblesquare_p.h"

#include "access/colorname_p.h"
#include "access/squarepoint_p.h"

namespace {

int percent(double fraction)
{
    return qRound(fraction * 100);
}

} // namespace

AccessibleSquare::AccessibleSquare(TavikColorPicker *square)
    : QAccessibleWidget(square, QAccessible::Slider)
    , m_picked(QObject::connect(square, &TavikColorPicker::colorChanged, square, [this] {
        QAccessibleValueChangeEvent event(this, currentValue());
        QAccessible::updateAccessibility(&event);
    }))
{
}

AccessibleSquare::~AccessibleSquare()
{
    QObject::disconnect(m_picked);
}

void *AccessibleSquare::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString AccessibleSquare::text(QAccessible::Text type) const
{
    if (type == QAccessible::Value)
        return valueText();
    const QString text = QAccessibleWidget::text(type);
    // Not every platform has a place for the text of a value.
    return type == QAccessible::Description && text.isEmpty() ? valueText() : text;
}

QVariant AccessibleSquare::currentValue() const
{
    return percent(square()->currentColor().saturationF());
}

void AccessibleSquare::setCurrentValue(const QVariant &value)
{
    if (!square()->isEnabled())
        return;
    const int width = SquarePoint::extent(square()).width();
    const double saturation = qBound(0.0, value.toDouble(), 100.0);
    square()->updateSelectedColor(qRound(saturation * width / 100), SquarePoint::of(square()).y());
}

QVariant AccessibleSquare::maximumValue() const
{
    return 100;
}

QVariant AccessibleSquare::minimumValue() const
{
    return 0;
}

QVariant AccessibleSquare::minimumStepSize() const
{
    return 1;
}

TavikColorPicker *AccessibleSquare::square() const
{
    return static_cast<TavikColorPicker *>(widget());
}

QString AccessibleSquare::valueText() const
{
    const QColor color = square()->currentColor();
    return tr("saturation %1 %, value %2 %, %3")
        .arg(percent(color.saturationF()))
        .arg(percent(color.valueF()))
        .arg(ColorName::of(color));
}
