#include "containerspage.h"

#include "containerspecimens.h"
#include "imagelistspecimen.h"

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
        ContainerSpecimens::column(),
        QStringLiteral("auto *box = new TavikContainer(Vertical, \"#fdfdfd\",\n"
                       "                               \"1\", \"#d3d3d3\");\n"
                       "box->setSpacing(0.667);\n"
                       "box->addWidget(name);"));
    addExample(Half, tr("Box: row"), tr("A stretch pushes what follows to the end."),
               ContainerSpecimens::row(),
               QStringLiteral("auto *box = new TavikContainer(Horizontal, \"#fdfdfd\",\n"
                              "                               \"1\", \"#d3d3d3\");\n"
                              "box->addWidget(changes);\n"
                              "box->addStretch();\n"
                              "box->addWidget(save);"));
}

void ContainersPage::addExpandables()
{
    addExample(Half, tr("Panel, open"),
               tr("A press anywhere on the title row opens or closes it, in half a second. What is below "
                  "follows."),
               ContainerSpecimens::expandable(true),
               QStringLiteral("auto *shadow = new TavikExpandable(tr(\"Shadow\"),\n"
                              "                                   12, true);\n"
                              "shadow->setRemWidth(36);\n"
                              "shadow->addLayout(form);"));
    addExample(Half, tr("Panel, closed"),
               tr("The height, in rem, is the one that it will have when it is open."),
               ContainerSpecimens::expandable(false),
               QStringLiteral("auto *shadow = new TavikExpandable(tr(\"Shadow\"),\n"
                              "                                   12, false);\n"
                              "connect(shadow, &TavikExpandable::animationFinished,\n"
                              "        this, &Settings::rememberWhatIsOpen);"));
}

void ContainersPage::addScrollAreas()
{
    addExample(Half, tr("Scroll area"),
               tr("The width is in rem and the height in pixels, the same on every screen. It never has a "
                  "horizontal bar."),
               ContainerSpecimens::scrollArea(),
               QStringLiteral("auto *area = new TavikScrollArea(this);\n"
                              "area->setRemSz(20, 180);   // rem, pixels\n"
                              "area->setWidgetResizable(true);\n"
                              "area->setWidget(layers);"));
    addExample(Half, tr("Scroll area in other colours"),
               tr("Border and ground come with the constructor, the bar is always the same."),
               ContainerSpecimens::colouredScrollArea(),
               QStringLiteral("new TavikScrollArea(\"2\", \"#08a274\", \"#f0faf6\", this);"));
}

void ContainersPage::addImageList()
{
    addExample(
        Whole, tr("Image list"),
        tr("Add pictures of your own, by the button or by dropping files on the list. Each is stretched to "
           "the icon size, whatever its proportions are. Control and Shift select several."),
        new ImageListSpecimen,
        QStringLiteral("auto *photographs = new TavikImageList(this);\n"
                       "photographs->setIconRemSz(18, 13.5);   // before the first picture\n"
                       "photographs->addImage(\"holidays/sea.png\");"));
}
