#ifndef GALLERY_LABELSPAGE_H
#define GALLERY_LABELSPAGE_H

#include "page.h"

/// TavikLabel in its two types, and as one uses it in a form.
class LabelsPage : public Page
{
    Q_OBJECT

public:
    LabelsPage();
};

#endif
