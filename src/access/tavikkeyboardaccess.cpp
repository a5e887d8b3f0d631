#include "access/tavikkeyboardaccess.h"

#include "access/controltable_p.h"
#include "access/keys/keyboardfilter_p.h"

void TavikKeyboardAccess::install(QWidget *root)
{
    if (!root || KeyboardFilter::covers(root))
        return;
    new KeyboardFilter(root, ControlTable::giveKeys);
}
