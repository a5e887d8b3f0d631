#include "color/popupshadow_p.h"

#include <QPainter>
#include <QWidget>

namespace {

QImage picture(QWidget *widget)
{
    return widget->grab().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/// The opacity of what lies under a pixel of `over`, so that both together have the opacity `both`.
int alphaBelow(int over, int both)
{
    return over == 255 ? 0 : qBound(0, ((both - over) * 255 + (255 - over) / 2) / (255 - over), 255);
}

} // namespace

PopupShadow::PopupShadow(QWidget *widget, int radius)
    : QGraphicsDropShadowEffect(widget)
    , m_widget(widget)
{
    setOffset(QPointF(0, 0));
    setColor(QColor(Qt::black));
    setBlurRadius(radius);
    setEnabled(false);
}

PopupShadow *PopupShadow::of(const QWidget *widget)
{
    return qobject_cast<PopupShadow *>(widget->graphicsEffect());
}

void PopupShadow::outlineChanged()
{
    m_shadow = QImage();
}

void PopupShadow::prepare()
{
    if (!m_shadow.isNull() && qFuzzyCompare(m_shadow.devicePixelRatio(), m_widget->devicePixelRatioF()))
        return;
    m_shadow = QImage();
    const QImage over = picture(m_widget);
    setEnabled(true);
    QImage shadow = picture(m_widget);
    setEnabled(false);

    // Shadow and widget lie over each other now; take the widget off.
    for (int y = 0; y < shadow.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(shadow.scanLine(y));
        const auto *overLine = reinterpret_cast<const QRgb *>(over.constScanLine(y));
        for (int x = 0; x < shadow.width(); ++x)
            line[x] = qRgba(0, 0, 0, alphaBelow(qAlpha(overLine[x]), qAlpha(line[x])));
    }
    m_shadow = shadow;
}

void PopupShadow::paint(QPainter *painter) const
{
    painter->drawImage(0, 0, m_shadow);
}
