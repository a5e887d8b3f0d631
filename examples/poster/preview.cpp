#include "preview.h"

#include "look.h"
#include "poster.h"
#include "posterpainter.h"

#include <QPainter>

#include <Tavik/IconTool>
#include <Tavik/LenConverter>

Preview::Preview(const Poster *poster, QWidget *parent)
    : QWidget(parent)
    , m_poster(poster)
{
    setAttribute(Qt::WA_OpaquePaintEvent); // no ground of the toolkit's beneath ours
    setMinimumSize(LenConverter::iniRemToPxSz(200, 200));
    connect(poster, &Poster::changed, this, &Preview::onChanged);
}

QRect Preview::posterRect() const
{
    const int margin = LenConverter::remToPx(3);
    const QRect room = rect().adjusted(margin, margin, -margin, -margin);
    const QSize size = m_poster->settings().size();
    QRect poster(QPoint(),
                 size.boundedTo(size.scaled(room.size(), Qt::KeepAspectRatio)).expandedTo({1, 1}));
    poster.moveCenter(room.center());
    return poster;
}

void Preview::onChanged()
{
    update();
    Q_EMIT scaleChanged(double(posterRect().width()) / m_poster->settings().width);
}

void Preview::resizeEvent(QResizeEvent *)
{
    onChanged();
}

void Preview::updateCover(const QSize &size)
{
    const Photograph &photograph = m_poster->photograph();
    if (m_cover.size() == size && m_coverName == photograph.name())
        return;
    m_cover = photograph.cover(size);
    m_coverName = photograph.name();
}

void Preview::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Look::Ground);
    paintShadow(painter);

    const QRect poster = posterRect();
    painter.fillRect(poster, Qt::white);
    painter.fillRect(poster, QBrush(IconTool::alphaTexture())); // seen through a transparent ground
    if (m_poster->settings().hasPhotograph)
        updateCover(poster.size() * devicePixelRatioF());
    painter.setClipRect(poster);
    painter.translate(poster.topLeft());
    PosterPainter::paint(painter, poster.size(), m_poster->settings(), m_cover);
}

void Preview::paintShadow(QPainter &painter) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 3));
    const int depth = LenConverter::remToPx(1.4);
    for (int i = depth; i > 0; i -= qMax(1, depth / 10))
        painter.drawRoundedRect(posterRect().adjusted(-i, -i / 2, i, i + depth / 3), i, i);
    painter.restore();
}
