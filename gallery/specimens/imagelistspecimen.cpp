#include "imagelistspecimen.h"

#include "common/filedrop.h"
#include "common/picturefiles.h"
#include "look.h"
#include "ownpictures.h"
#include "report.h"

#include <QImageReader>
#include <QVBoxLayout>

#include <Tavik/TavikButton>
#include <Tavik/TavikImageList>

ImageListSpecimen::ImageListSpecimen(QWidget *parent)
    : QWidget(parent)
    , m_report(new Report(20))
{
    //! [imageList]
    m_list = new TavikImageList;
    m_list->setIconRemSz(18, 13.5); // before the first picture
    m_list->setSpacing(LenConverter::iniRemToPx(4));
    m_list->setFixedHeight(LenConverter::remToPx(31));
    //! [imageList]
    addPictures(OwnPictures::paths());
    connect(m_list, &QListWidget::itemSelectionChanged, m_report,
        [this] {
            m_report->tell("itemSelectionChanged",
                tr("%n selected", nullptr,
                    m_list->selectedItems().size()));
        });
    connect(new FileDrop(m_list->viewport()), &FileDrop::dropped,
        this, &ImageListSpecimen::addPictures);

    auto *add = new TavikButton(
        tr("Add pictures..."), TavikButton::Outline);
    add->setRemSize(12, 2.667);
    connect(add, &QPushButton::clicked, this,
        &ImageListSpecimen::choosePictures);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(LenConverter::remToPx(Look::SmallGap));
    layout->addWidget(m_list);
    layout->addWidget(Look::row({add, m_report}));
}

void ImageListSpecimen::addPictures(const QStringList &files)
{
    //! [imageList]
    for (const QString &file : files) {
        if (QImageReader(file).canRead())
            m_list->addImage(file);
    }
    //! [imageList]
}

void ImageListSpecimen::choosePictures()
{
    addPictures(PictureFiles::ask(this, tr("Add pictures")));
}
