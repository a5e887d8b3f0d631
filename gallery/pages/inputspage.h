#ifndef GALLERY_INPUTSPAGE_H
#define GALLERY_INPUTSPAGE_H

#include "page.h"

/// Fields, spin boxes, slider and dial: what takes a value, and the rule between them.
class InputsPage : public Page
{
    Q_OBJECT

public:
    InputsPage();

private:
    void addLineEdits();
    void addSpinBoxes();
    void addSliders();
    void addRules();
};

#endif
