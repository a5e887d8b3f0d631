#ifndef GALLERY_COLOURSPAGE_H
#define GALLERY_COLOURSPAGE_H

#include "page.h"

/// The colour controls, alone and wired to one popup.
class ColoursPage : public Page
{
    Q_OBJECT

public:
    ColoursPage();

private:
    void addWiring();
    void addPopup();
    void addButton();
    void addBar();
    void addParts();
};

#endif
