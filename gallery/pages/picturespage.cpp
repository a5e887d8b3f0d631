#include "picturespage.h"

#include "look.h"
#include "picturerow.h"
#include "specimens/picturespecimens.h"

#include <QDir>
#include <QGridLayout>

#include <Tavik/LenConverter>

PicturesPage::PicturesPage()
    : Page(tr("Thirty pictures come inside the library and can be used by their paths, here at 12, 16, 24 "
              "and 40 design pixels."))
{
    addExample(Half, tr("Use a picture"), tr("A path works in icons, in pixmaps and in style sheets."),
               PictureSpecimens::use(), {"picturespecimens", "use"});
    addExample(Half, tr("Three drawings in one icon"),
               tr("One path without extension: _hover and _press are added to it."),
               PictureSpecimens::threeDrawings(), {"picturespecimens", "threeDrawings"});
    addExample(Half, tr("Behind a transparent colour"),
               tr("The texture is tiled first, then the colour painted over it."),
               PictureSpecimens::transparency(), {"transparentswatch", "paint"});
    addFolder(Half, QStringLiteral("Check"), tr("Indicators of check boxes."));
    addFolder(Half, QStringLiteral("Radio"), tr("Indicators of radio buttons."));
    addFolder(Half, QStringLiteral("SpinboxArrow"), tr("Arrows of spin boxes and combo boxes."),
              Look::Accent);
    addFolder(Half, QStringLiteral("Expandable"), tr("Arrows of panels that open and close."));
    addFolder(Half, QStringLiteral("Button"), tr("For buttons that remove something."));
    addFolder(Half, QStringLiteral("Slider"), tr("For the handles of sliders."));
    addFolder(Half, QStringLiteral("SeperateLine"), tr("The rule between groups."));
    addFolder(Whole, QStringLiteral("Color"),
              tr("For everything that has to do with colours. Three sets have a drawing for each state of "
                 "a picture button; the texture goes behind transparent colours."));
}

void PicturesPage::addFolder(Span span, const QString &folder, const QString &description,
                             const QColor &ground)
{
    const QString directory = QStringLiteral(":/%1/images").arg(folder);
    const QStringList files = QDir(directory).entryList(QDir::Files, QDir::Name);
    auto *pictures = new QWidget;
    auto *layout = new QGridLayout(pictures);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(LenConverter::remToPx(3 * Look::Gap));
    layout->setVerticalSpacing(LenConverter::iniRemToPx(8));
    const int rows = (files.size() + span - 1) / span;
    for (int i = 0; i < files.size(); ++i)
        layout->addWidget(new PictureRow(directory + QLatin1Char('/') + files.at(i), ground), i % rows,
                          i / rows);
    layout->setRowStretch(rows, 1);
    for (int column = 0; column < span; ++column)
        layout->setColumnStretch(column, 1);
    addExample(span, folder, description, pictures);
}
