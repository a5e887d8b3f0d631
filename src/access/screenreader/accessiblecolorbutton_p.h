#ifndef TAVIK_ACCESSIBLECOLORBUTTON_P_H
#define TAVIK_ACCESSIBLECOLORBUTTON_P_H

#include "access/screenreader/accessiblebutton_p.h"

#include <QCoreApplication>

class TavikColorButton;

/// Tells a colour button. Its name ends with the colour: "Fill, #2e7d5b" if it is called "Fill".
class AccessibleColorButton : public AccessibleButton
{
    Q_DECLARE_TR_FUNCTIONS(AccessibleColorButton)

public:
    explicit AccessibleColorButton(TavikColorButton *button);

    QString text(QAccessible::Text type) const override;

private:
    QObject m_context; // ends its connection
};

#endif
