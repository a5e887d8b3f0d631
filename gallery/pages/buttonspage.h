#ifndef GALLERY_BUTTONSPAGE_H
#define GALLERY_BUTTONSPAGE_H

#include "page.h"

/// TavikButton in its types and states, with pictures, and in looks of an application's own.
class ButtonsPage : public Page
{
    Q_OBJECT

public:
    ButtonsPage();

private:
    void addIcons();
    void addLooks();
};

#endif
