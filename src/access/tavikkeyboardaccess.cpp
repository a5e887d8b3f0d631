#include "access/tavikkeyboardaccess.h"

#include "access/keyboardfilter_p.h"

void TavikKeyboardAccess::install(QWidget *root)
{
    if (!root || KeyboardFilter::covers(root))
        return;
    new KeyboardFilter(root);
}
