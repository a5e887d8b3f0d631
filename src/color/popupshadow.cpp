#include "popupshadow_p.h"

#include <QPainter>

namespace {

/// The opacity of what lies under a pixel of `over`, so that both together have the opacity `both`.
int alphaBelow(int over, int both)
{
    return over == 255 ? 0 : qBound(0, ((both - over) * 255 + (255 - over) / 2) / (255 - over), 255);
}

} // namespace

void PopupShadow::outlineChanged()
{
    m_shadow = QImage();
    update();
}

void PopupShadow::sourceChanged(ChangeFlags flags)
{
    if (flags & (SourceAttached | SourceDetached | SourceBoundingRectChanged))
        m_shadow = QImage();
    QGraphicsDropShadowEffect::sourceChanged(flags);
}

void PopupShadow::draw(QPainter *painter)
{
    const QRectF bounds = painter->worldTransform().mapRect(boundingRectFor(sourceBoundingRect()));
    QPoint pos = bounds.toAlignedRect().topLeft();
    if (m_shadow.isNull() ||
        !qFuzzyCompare(m_shadow.devicePixelRatio(), painter->device()->devicePixelRatioF())) {
        const QPixmap source = sourcePixmap(Qt::DeviceCoordinates, &pos, PadToEffectiveBoundingRect);
        m_shadow = makeShadow(source, pos);
    }
    const QTransform transform = painter->worldTransform();
    painter->setWorldTransform(QTransform());
    painter->drawImage(pos, m_shadow);
    painter->setWorldTransform(transform);
    drawSource(painter);
}

QImage PopupShadow::makeShadow(const QPixmap &source, const QPoint &sourcePos)
{
    QImage shadow(source.size(), QImage::Format_ARGB32_Premultiplied);
    shadow.setDevicePixelRatio(source.devicePixelRatio());
    shadow.fill(Qt::transparent);
    QPainter painter(&shadow);
    // The toolkit's effect draws at the source's place, whatever the world transformation is.
    const QSize size = source.size() / source.devicePixelRatio();
    painter.setWindow(QRect(sourcePos, size));
    QGraphicsDropShadowEffect::draw(&painter);
    painter.end();

    // Shadow and source lie over each other now; take the source off.
    const QImage over = source.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < shadow.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(shadow.scanLine(y));
        const auto *overLine = reinterpret_cast<const QRgb *>(over.constScanLine(y));
        for (int x = 0; x < shadow.width(); ++x)
            line[x] = qRgba(0, 0, 0, alphaBelow(qAlpha(overLine[x]), qAlpha(line[x])));
    }
    return shadow;
}
