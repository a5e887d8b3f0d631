#include "picturerow.h"

#include "codelabel.h"
#include "look.h"
#include "surface.h"

#include <QHBoxLayout>
#include <QImageReader>
#include <QPixmap>

#include <Tavik/LenConverter>

namespace {

const QVector<int> iconSizes{12, 16, 24, 40};
// A line has a length of its own and no height to speak of.
const QVector<int> lineSizes{110};

/// The picture in a square of `side` pixels, drawn for this very size.
QPixmap rendered(const QString &path, int side, double pixelRatio)
{
    QImageReader reader(path);
    const QSize box = QSize(side, side) * pixelRatio;
    // A line would be scaled to nothing: it is one design pixel high at least.
    const QSize least = LenConverter::iniRemToPxSz(1, 1) * pixelRatio;
    reader.setScaledSize(reader.size().scaled(box, Qt::KeepAspectRatio).expandedTo(least));
    QPixmap pixmap = QPixmap::fromImageReader(&reader);
    pixmap.setDevicePixelRatio(pixelRatio);
    return pixmap;
}

bool isLine(const QString &path)
{
    const QSize size = QImageReader(path).size();
    return size.width() > 10 * size.height();
}

} // namespace

PictureRow::PictureRow(const QString &path, const QColor &ground, QWidget *parent)
    : QWidget(parent)
{
    auto *tile = new Surface(ground, Look::Line);
    tile->setFixedSize(LenConverter::iniRemToPxSz(150, 52));
    auto *tileLayout = new QHBoxLayout(tile);
    tileLayout->setContentsMargins(0, 0, 0, 0);
    tileLayout->setSpacing(LenConverter::iniRemToPx(12));
    tileLayout->addStretch();
    for (int size : isLine(path) ? lineSizes : iconSizes) {
        auto *picture = new QLabel;
        picture->setPixmap(rendered(path, LenConverter::iniRemToPx(size), devicePixelRatioF()));
        tileLayout->addWidget(picture);
    }
    tileLayout->addStretch();

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(LenConverter::remToPx(Look::SmallGap));
    layout->addWidget(tile);
    layout->addWidget(new CodeLabel(path));
    layout->addStretch();
}
