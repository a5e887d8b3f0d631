#include "containerspage.h"

#include "specimens/containerspecimens.h"
#include "specimens/imagelistspecimen.h"

ContainersPage::ContainersPage()
    : Page(tr("What holds other controls, here with real content."))
{
    addBoxes();
    addExpandables();
    addScrollAreas();
    addImageList();
}

void ContainersPage::addBoxes()
{
    addExample(
        Half, tr("Box: column"),
        tr("Colours and lengths are fixed by the constructor, the lengths in pixels. Spacing is in rem."),
        ContainerSpecimens::column(), {"containerspecimens", "column"});
    addExample(Half, tr("Box: row"), tr("A stretch pushes what follows to the end."),
               ContainerSpecimens::row(), {"containerspecimens", "row"});
}

void ContainersPage::addExpandables()
{
    addExample(Half, tr("Panel, open"),
               tr("A press anywhere on the title row opens or closes it, in half a second. What is below "
                  "follows."),
               ContainerSpecimens::openPanel(), {"containerspecimens", "openPanel"});
    addExample(Half, tr("Panel, closed"),
               tr("The height, in rem, is the one that it will have when it is open."),
               ContainerSpecimens::closedPanel(), {"containerspecimens", "closedPanel"});
}

void ContainersPage::addScrollAreas()
{
    addExample(Half, tr("Scroll area"),
               tr("The width is in rem and the height in pixels, the same on every screen. It never has a "
                  "horizontal bar."),
               ContainerSpecimens::scrollArea(), {"containerspecimens", "scrollArea"});
    addExample(Half, tr("Scroll area in other colours"),
               tr("Border and ground come with the constructor, the bar is always the same."),
               ContainerSpecimens::colouredScrollArea(), {"containerspecimens", "colouredScrollArea"});
}

void ContainersPage::addImageList()
{
    addExample(
        Whole, tr("Image list"),
        tr("Add pictures of your own, by the button or by dropping files on the list. Each is stretched to "
           "the icon size, whatever its proportions are. Control and Shift select several."),
        new ImageListSpecimen, {"imagelistspecimen", "imageList"});
}
