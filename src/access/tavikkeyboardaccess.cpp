#include "tavikkeyboardaccess.h"

#include "focusmark_p.h"
#include "keyboardfilter_p.h"

void TavikKeyboardAccess::install(QWidget *root)
{
    if (!root || KeyboardFilter::covers(root))
        return;
    FocusMark::install();
    new KeyboardFilter(root);
}
