#include "picturespecimens.h"

#include "look.h"
#include "transparentswatch.h"

#include <QLabel>

#include <Tavik/IconTool>
#include <Tavik/LenConverter>
#include <Tavik/TavikButton>

QWidget *PictureSpecimens::use()
{
    //! [use]
    const QIcon bin(":/Button/images/delete_grey.svg");
    auto *remove = new TavikButton(bin, QSizeF(1.333, 1.333),
        " " + tr("Remove"), TavikButton::Outline);
    remove->setRemSize(9, 2.667);
    //! [use]
    return Look::row({remove});
}

QWidget *PictureSpecimens::threeDrawings()
{
    //! [threeDrawings]
    const QSize size = LenConverter::iniRemToPxSz(32, 32);
    const QIcon icon = IconTool::constructIcon(
        ":/Color/images/gradient", size);
    const QPixmap active = icon.pixmap(
        size, QIcon::Active, QIcon::On);
    //! [threeDrawings]
    const QPixmap normal = icon.pixmap(
        size, QIcon::Normal, QIcon::On);
    const QPixmap selected = icon.pixmap(
        size, QIcon::Selected, QIcon::On);
    const auto drawing = [](const QPixmap &pixmap,
                             const QString &name) {
        auto *picture = new QLabel;
        picture->setPixmap(pixmap);
        return Look::captioned(picture, name);
    };
    return Look::row(
        {drawing(normal, "Normal"), drawing(active, "Active"),
            drawing(selected, "Selected")});
}

QWidget *PictureSpecimens::transparency()
{
    const auto swatch = [](int alpha) {
        QColor color = Look::Accent;
        color.setAlpha(alpha);
        return new TransparentSwatch(color);
    };
    return Look::row({swatch(0), swatch(128), swatch(255)});
}
