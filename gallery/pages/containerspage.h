#ifndef GALLERY_CONTAINERSPAGE_H
#define GALLERY_CONTAINERSPAGE_H

#include "page.h"

/// Boxes, panels, scroll areas and the list of pictures: what holds other things.
class ContainersPage : public Page
{
    Q_OBJECT

public:
    ContainersPage();

private:
    void addBoxes();
    void addExpandables();
    void addScrollAreas();
    void addImageList();
};

#endif
