#ifndef TAVIK_ACCESSIBLEADDBUTTON_P_H
#define TAVIK_ACCESSIBLEADDBUTTON_P_H

#include "access/screenreader/accessiblebutton_p.h"

/// Tells the add button of a palette, which is in focus when the palette's keys are for it.
class AccessibleAddButton : public AccessibleButton
{
public:
    using AccessibleButton::AccessibleButton;

    QAccessible::State state() const override;
};

#endif
