#include "access/screenreader/accessiblesquare_p.h"

#include "color/colorname_p.h"
#include "color/squarepoint_p.h"
#include "color/tavikcolorpicker.h"

namespace {

int percent(double fraction)
{
    return qRound(fraction * 100);
}

} // namespace

AccessibleSquare::AccessibleSquare(TavikColorPicker *square, std::unique_ptr<SquarePoint> point)
    : QAccessibleWidget(square, QAccessible::Slider)
    , m_point(std::move(point))
{
    m_point->follow(&m_context, [this](int) {
        QAccessibleValueChangeEvent event(this, currentValue());
        QAccessible::updateAccessibility(&event);
    });
}

AccessibleSquare::~AccessibleSquare() = default;

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
    const double saturation = qBound(0.0, value.toDouble(), 100.0);
    m_point->moveTo({qRound(saturation * m_point->extent().width() / 100), m_point->pos().y()});
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
