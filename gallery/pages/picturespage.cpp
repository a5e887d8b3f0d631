#include "picturespage.h"

#include "look.h"
#include "picturerow.h"
#include "transparentswatch.h"

#include <QDir>
#include <QGridLayout>

#include <Tavik/LenConverter>
#include <Tavik/TavikButton>

PicturesPage::PicturesPage()
    : Page(tr("Thirty pictures come inside the library and can be used by their paths, here at 12, 16, 24 "
              "and 40 design pixels."))
{
    addUse();
    addTransparency();
    addFolder(Half, QStringLiteral("Radio"), tr("Indicators of radio buttons."));
    addFolder(Half, QStringLiteral("SpinboxArrow"), tr("Arrows of spin boxes and combo boxes."),
              Look::Accent);
    addFolder(Half, QStringLiteral("Check"), tr("Indicators of check boxes."));
    addFolder(Half, QStringLiteral("Expandable"), tr("Arrows of panels that open and close."));
    addFolder(Half, QStringLiteral("Button"), tr("For buttons that remove something."));
    addFolder(Half, QStringLiteral("Slider"), tr("For the handles of sliders."));
    addFolder(Half, QStringLiteral("SeperateLine"), tr("The rule between groups."));
    addFolder(Whole, QStringLiteral("Color"),
              tr("For everything that has to do with colours. Three sets have a drawing for each state of "
                 "a picture button; the texture goes behind transparent colours."));
}

void PicturesPage::addUse()
{
    const QIcon icon(QStringLiteral(":/Button/images/delete_grey.svg"));
    auto *button = new TavikButton(icon, QSizeF(1.333, 1.333), tr("Remove"), TavikButton::Outline);
    button->setRemSize(9, 2.667);
    addExample(Half, tr("Use a picture"),
               tr("A path works wherever the toolkit takes a file name: in icons, pixmaps and sheets."),
               Look::row({button}),
               QStringLiteral("const QIcon icon(\":/Button/images/delete_grey.svg\");\n"
                              "new TavikButton(icon, QSizeF(1.333, 1.333),\n"
                              "                tr(\"Remove\"), TavikButton::Outline, this);"));
}

void PicturesPage::addTransparency()
{
    const auto swatch = [](int alpha) {
        QColor color = Look::Accent;
        color.setAlpha(alpha);
        return new TransparentSwatch(color);
    };
    addExample(Half, tr("Behind a transparent colour"),
               tr("The texture is tiled first and the colour painted over it: here with no, half and full "
                  "opacity."),
               Look::row({swatch(0), swatch(128), swatch(255)}),
               QStringLiteral("painter.fillRect(rect(), QBrush(IconTool::alphaTexture()));\n"
                              "painter.fillRect(rect(), QColor(8, 162, 116, 128));"));
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
