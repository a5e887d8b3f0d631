#include "containers/tavikimagelist.h"

#include "containers/thumbnail_p.h"
#include "foundation/lengths_p.h"
#include "foundation/sheet_p.h"

#include <QScrollBar>

TavikImageList::TavikImageList(QWidget *parent)
    : QListWidget(parent)
{
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setStyleSheet(Sheet::join({
        {"TavikImageList { border: none; outline: 0px; }"
         "TavikImageList::item {outline: 0px;border-radius: 3px;border: 1px solid ",
         "#d3d3d3"},
        {";}TavikImageList::item:selected {background: ", "#08a274"},
        {";}TavikImageList::item:hover {border-color: ", "#08a274"},
        {";}"},
    }));
    verticalScrollBar()->setStyleSheet(Sheet::verticalScrollBar(Sheet::HandleBorder::AllSides));
    setViewMode(QListView::IconMode);
    setMovement(QListView::Static);
    setResizeMode(QListView::Adjust);
}

void TavikImageList::setRemWidth(double rem)
{
    setFixedWidth(LenConverter::remToPx(rem));
}

void TavikImageList::setIconRemSz(const double &remWidth, const double &remHeight)
{
    setIconSize(Lengths::remToPx(QSizeF(remWidth, remHeight)));
}

void TavikImageList::addImage(const QString &fileName)
{
    auto *item = new QListWidgetItem(this);
    const QImage image = Thumbnail::read(fileName, decorationSize());
    item->setData(Qt::DecorationRole, QIcon(QPixmap::fromImage(image)));
}

QSize TavikImageList::decorationSize() const
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return viewOptions().decorationSize;
#else
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    return option.decorationSize;
#endif
}

void TavikImageList::showEvent(QShowEvent *event)
{
    QListWidget::showEvent(event);
    setCurrentRow(-1);
}
