#ifndef GALLERY_CHOICESPAGE_H
#define GALLERY_CHOICESPAGE_H

#include "page.h"

/// Button groups, check boxes, radio buttons and combo boxes: what offers a choice.
class ChoicesPage : public Page
{
    Q_OBJECT

public:
    ChoicesPage();

private:
    void addBars();
    void addGroupsOfOtherKinds();
    void addBoxesAndRadioButtons();
    void addComboBoxes();
};

#endif
