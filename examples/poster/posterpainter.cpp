#include "posterpainter.h"

#include "photograph.h"
#include "postersettings.h"

#include <QGuiApplication>
#include <QPainter>
#include <QtMath>

namespace {

double letterHeight(const PosterSettings &settings, const QSize &size)
{
    return qMin(size.width(), size.height()) * settings.captionSize / 100.0;
}

QFont captionFont(const PosterSettings &settings, const QSize &size)
{
    QFont font = QGuiApplication::font();
    if (!settings.family.isEmpty())
        font.setFamily(settings.family);
    font.setBold(settings.isBold);
    font.setPixelSize(qMax(1, qRound(letterHeight(settings, size))));
    font.setHintingPreference(QFont::PreferNoHinting); // lines break alike at every size
    return font;
}

void paintText(QPainter &painter, const QSize &size, const PosterSettings &settings, const QColor &color)
{
    const int margin = qRound(qMin(size.width(), size.height()) * 0.07);
    const QRect place = QRect(QPoint(), size).adjusted(margin, margin, -margin, -margin);
    painter.setFont(captionFont(settings, size));
    painter.setPen(color);
    painter.drawText(place, int(settings.alignment()) | Qt::TextWordWrap, settings.caption);
}

/// A soft shadow: the text painted small, and blurred by being drawn large.
void paintShadow(QPainter &painter, const QSize &size, const PosterSettings &settings)
{
    const double letters = letterHeight(settings, size);
    const double blur = qMax(1.0, letters * 0.05);
    QImage small((QSizeF(size) / blur).toSize().expandedTo({1, 1}), QImage::Format_ARGB32_Premultiplied);
    small.fill(Qt::transparent);
    QPainter smallPainter(&small);
    smallPainter.scale(double(small.width()) / size.width(), double(small.height()) / size.height());
    paintText(smallPainter, size, settings, settings.shadowColor);
    smallPainter.end();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(QPointF(0, letters * 0.04), size), small);
}

} // namespace

QImage PosterPainter::picture(const PosterSettings &settings, const Photograph &photograph,
                              const QSize &size)
{
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(painter, size, settings, settings.hasPhotograph ? photograph.cover(size) : QImage());
    return picture;
}

void PosterPainter::paint(QPainter &painter, const QSize &size, const PosterSettings &settings,
                          const QImage &cover)
{
    const QRect all(QPoint(), size);
    if (settings.hasPhotograph && !cover.isNull())
        painter.drawImage(all, cover);
    else
        painter.fillRect(all, settings.ground);
    if (settings.hasGradient)
        painter.fillRect(all, gradient(settings, size));
    if (settings.caption.isEmpty())
        return;
    if (settings.shadowColor.alpha() > 0)
        paintShadow(painter, size, settings);
    paintText(painter, size, settings, settings.captionColor);
}

QLinearGradient PosterPainter::gradient(const PosterSettings &settings, const QSizeF &size)
{
    const double radians = qDegreesToRadians(double(settings.angle));
    const QPointF direction(qSin(radians), -qCos(radians));
    const double length = qAbs(size.width() * direction.x()) + qAbs(size.height() * direction.y());
    const QPointF centre(size.width() / 2.0, size.height() / 2.0);
    QLinearGradient gradient(centre - direction * length / 2.0, centre + direction * length / 2.0);
    gradient.setStops(settings.stops());
    return gradient;
}
