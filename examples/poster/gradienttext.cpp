#include "gradienttext.h"

#include "posterpainter.h"
#include "postersettings.h"

namespace {

QString number(double value, int decimals = 4)
{
    QString text = QString::number(value, 'f', decimals);
    while (text.contains(QLatin1Char('.')) &&
           (text.endsWith(QLatin1Char('0')) || text.endsWith(QLatin1Char('.'))))
        text.chop(1);
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

QString cssColor(const QColor &color)
{
    return QStringLiteral("rgba(%1, %2, %3, %4)")
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue())
        .arg(number(color.alphaF(), 3));
}

} // namespace

QString GradientText::styleSheet(const PosterSettings &settings)
{
    // Style sheets measure in shares of the width and of the height, which turns the lines of one colour; so
    // the way is the one whose lines are right once it is stretched.
    const QLinearGradient gradient = PosterPainter::gradient(settings, settings.size());
    const QPointF way = gradient.finalStop() - gradient.start();
    const double square = QPointF::dotProduct(way, way);
    const QPointF slope(way.x() * settings.width / square, way.y() * settings.height / square);
    const QPointF half = slope / QPointF::dotProduct(slope, slope) / 2.0;

    QStringList parts;
    for (const auto &[name, value] : {std::pair("x1", 0.5 - half.x()), std::pair("y1", 0.5 - half.y()),
                                      std::pair("x2", 0.5 + half.x()), std::pair("y2", 0.5 + half.y())})
        parts.append(QString::fromLatin1(name) + QLatin1Char(':') + number(value));
    const QGradientStops stops = settings.stops();
    for (const QGradientStop &stop : stops)
        parts.append(
            QStringLiteral("stop:%1 %2").arg(number(stop.first), stop.second.name(QColor::HexArgb)));
    return QStringLiteral("qlineargradient(%1)").arg(parts.join(QLatin1String(", ")));
}

QString GradientText::css(const PosterSettings &settings)
{
    QStringList parts{QStringLiteral("%1deg").arg(settings.angle)};
    const QGradientStops stops = settings.stops();
    for (const QGradientStop &stop : stops)
        parts.append(QStringLiteral("%1 %2%").arg(cssColor(stop.second), number(stop.first * 100.0)));
    return QStringLiteral("linear-gradient(%1)").arg(parts.join(QLatin1String(", ")));
}
