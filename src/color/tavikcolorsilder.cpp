#include "color/tavikcolorsilder.h"

#include "color/swatch_p.h"
#include "foundation/lenconverter.h"

#include <QMouseEvent>

namespace {

QVector<QColor> hueColors()
{
    QVector<QColor> colors;
    for (int hue = 0; hue < 360; hue += 60)
        colors.append(QColor::fromHsv(hue, 255, 255, 255));
    colors.append(QColor(Qt::red));
    return colors;
}

QVector<QColor> alphaColors()
{
    QVector<QColor> colors;
    for (int alpha = 0; alpha < 255; ++alpha)
        colors.append(QColor::fromRgb(0, 0, 0, alpha));
    colors.append(QColor(Qt::black));
    return colors;
}

} // namespace

TavikColorSilder::TavikColorSilder(const int &width, const int &height, Type type, QWidget *parent)
    : QSlider(Qt::Horizontal, parent)
{
    setFixedSize(width, height);
    if (type == Hue) {
        setAccessibleName(tr("Hue"));
        setRange(0, 360);
        setColors(hueColors());
    } else if (type == Alpha) {
        setAccessibleName(tr("Alpha"));
        setRange(0, 255);
        setColors(alphaColors());
        m_textureBrush = Swatch::texture();
    }
}

TavikColorSilder::TavikColorSilder(QWidget *parent)
    : TavikColorSilder(LenConverter::iniRemToPx(166), LenConverter::iniRemToPx(16), Hue, parent)
{
}

QVector<QColor> TavikColorSilder::colors() const
{
    return m_colors;
}

void TavikColorSilder::setColors(QVector<QColor> colors)
{
    m_colors = std::move(colors);
    update();
}

QColor TavikColorSilder::firstColor() const
{
    return m_colors.value(0);
}

QColor TavikColorSilder::lastColor() const
{
    return m_colors.value(m_colors.size() - 1);
}

void TavikColorSilder::setFirstColor(QColor color)
{
    setColors({color});
}

void TavikColorSilder::setLastColor(QColor color)
{
    m_colors.append(color);
    update();
}

QLinearGradient TavikColorSilder::gradient() const
{
    const bool isHorizontal = orientation() == Qt::Horizontal;
    QLinearGradient gradient(0, 0, isHorizontal ? 1 : 0, isHorizontal ? 0 : 1);
    gradient.setCoordinateMode(QGradient::StretchToDeviceMode);
    const double intervals = qMax(1, m_colors.size() - 1);
    QGradientStops stops; // all at once: stop by stop, the toolkit searches the place for each
    stops.reserve(m_colors.size());
    for (int i = 0; i < m_colors.size(); ++i)
        stops.append({i / intervals, m_colors.at(i)});
    gradient.setStops(stops);
    return gradient;
}

void TavikColorSilder::mousePressEvent(QMouseEvent *event)
{
    QSlider::mousePressEvent(event);
    setHandleColor(m_handleRect.contains(event->pos()) ? 0xe8e8e8 : 0xffffff);
}

void TavikColorSilder::mouseReleaseEvent(QMouseEvent *event)
{
    QSlider::mouseReleaseEvent(event);
    setHandleColor(0xffffff);
}

void TavikColorSilder::mouseMoveEvent(QMouseEvent *event)
{
    QSlider::mouseMoveEvent(event);
    const QRgb inside = event->buttons() & Qt::LeftButton ? 0xe8e8e8 : 0xf7f7f7;
    setHandleColor(m_handleRect.contains(event->pos()) ? inside : 0xffffff);
}

void TavikColorSilder::paintEvent(QPaintEvent *)
{
    // The mouse is tested against the handle as it was painted last, also while the value runs ahead of it.
    m_handleRect = handleRect();
    QPainter painter(this);
    // Thinner than a pixel: it paints at half strength.
    painter.setPen(QPen(QColor(0x404040), 0.5));
    paintGroove(painter);
    paintHandle(painter);
}

QRect TavikColorSilder::grooveRect() const
{
    return {QPoint(3, 3), QPoint(width() - 10, height() - 7)};
}

QRect TavikColorSilder::handleRect() const
{
    const double range = double(maximum()) - minimum();
    const double share = range > 0 ? (double(value()) - minimum()) / range : 0;
    const int top = (height() - 1) / 2 - (height() - 4) / 2;
    return {int(share * (width() - 12)), top, 7, height() - 3};
}

void TavikColorSilder::setHandleColor(QRgb color)
{
    m_handleColor = QColor(color);
    update();
}

void TavikColorSilder::paintGroove(QPainter &painter) const
{
    const QBrush fill = m_colors.isEmpty() ? QBrush() : QBrush(gradient());
    Swatch::paint(painter, grooveRect(), m_textureBrush, fill);
}

void TavikColorSilder::paintHandle(QPainter &painter) const
{
    painter.setBrush(m_handleColor);
    painter.drawRect(m_handleRect);
}
