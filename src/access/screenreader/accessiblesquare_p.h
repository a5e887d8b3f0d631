#ifndef TAVIK_ACCESSIBLESQUARE_P_H
#define TAVIK_ACCESSIBLESQUARE_P_H

#include <QAccessibleWidget>
#include <QCoreApplication>

#include <memory>

class SquarePoint;
class TavikColorPicker;

/// Tells the saturation/value square as a slider for the saturation in percent. Its value text, which is its
/// description too, has the value and the colour as well.
class AccessibleSquare : public QAccessibleWidget, public QAccessibleValueInterface
{
    Q_DECLARE_TR_FUNCTIONS(AccessibleSquare)

public:
    AccessibleSquare(TavikColorPicker *square, std::unique_ptr<SquarePoint> point);
    ~AccessibleSquare() override;

    void *interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text type) const override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant &value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

private:
    TavikColorPicker *square() const;
    QString valueText() const;

    std::unique_ptr<SquarePoint> m_point;
    QObject m_context; // ends its connection
};

#endif
