#ifndef TAVIK_ACCESSIBLECOLORBUTTON_P_H
#define TAVIK_ACCESSIBLECOLORBUTTON_P_H

#include <QAccessibleWidget>
#include <QCoreApplication>

class TavikColorButton;

/// Tells a colour button. Its name ends with the colour: "Fill, #2e7d5b" if it is called "Fill".
class AccessibleColorButton : public QAccessibleWidget
{
    Q_DECLARE_TR_FUNCTIONS(AccessibleColorButton)

public:
    explicit AccessibleColorButton(TavikColorButton *button);
    ~AccessibleColorButton() override;

    QString text(QAccessible::Text type) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

private:
    TavikColorButton *button() const;

    QMetaObject::Connection m_changed;
};

#endif
