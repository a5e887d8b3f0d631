#include "color/tavikgradientbar.h"

#include "color/swatch_p.h"
#include "foundation/lenconverter.h"

#include <QMouseEvent>

#include <limits>

namespace {

/// Cut towards zero; what no int can hold gives the nearest one, and NaN the lowest.
int truncated(double value)
{
    using Int = std::numeric_limits<int>;
    return int(qBound(double(Int::min()), value, double(Int::max())));
}

} // namespace

TavikGradientBar::TavikGradientBar(const int &width, const int &height, QWidget *parent)
    : QWidget(parent)
{
    setFixedSize(width, height);
    const int w = QWidget::width();
    const int h = QWidget::height();
    const int half = (h - 2) / 2;
    m_startSquare = QRect(1, 1, h - 2, h - 2);
    m_barRect = QRect(QPoint(h + half - 1, 3), QPoint(w - h - half - 6, h - 4));
    m_endSquare = QRect(w - h - 6, 0, h - 2, h - 2);
    m_startHandle = QRect(0, 0, half, h - 2);
    m_endHandle = m_startHandle;
    refreashGradient();
    setAccessibleName(tr("Gradient"));
}

TavikGradientBar::TavikGradientBar(const double &remWidth, const double &remHeight, QWidget *parent)
    : TavikGradientBar(LenConverter::remToPx(remWidth), LenConverter::remToPx(remHeight), parent)
{
}

TavikGradientBar::TavikGradientBar(const double &remWidth, const int &remHeight, QWidget *parent)
    : TavikGradientBar(remWidth, double(remHeight), parent)
{
}

TavikGradientBar::TavikGradientBar(const int &remWidth, const double &remHeight, QWidget *parent)
    : TavikGradientBar(double(remWidth), remHeight, parent)
{
}

TavikGradientBar::TavikGradientBar(QWidget *parent)
    : TavikGradientBar(LenConverter::iniRemToPx(200), LenConverter::iniRemToPx(24), parent)
{
}

int TavikGradientBar::startValue() const
{
    return m_startValue;
}

void TavikGradientBar::setStartValue(int value)
{
    m_startValue = value;
}

int TavikGradientBar::endValue() const
{
    return m_endValue;
}

void TavikGradientBar::setEndValue(int value)
{
    m_endValue = value;
}

QColor TavikGradientBar::startColor() const
{
    return m_startColor;
}

void TavikGradientBar::setStartColor(const QColor &color)
{
    m_startColor = color;
    refreashGradient();
    Q_EMIT selectedStartColor(colorAt(m_startValue));
}

QColor TavikGradientBar::endColor() const
{
    return m_endColor;
}

void TavikGradientBar::setEndColor(const QColor &color)
{
    m_endColor = color;
    refreashGradient();
    Q_EMIT selectedEndColor(colorAt(m_endValue));
}

TavikGradientBar::Side TavikGradientBar::selectedSide() const
{
    return m_selectedSide;
}

void TavikGradientBar::setSelectedSide(const Side &side)
{
    m_selectedSide = side;
}

QColor TavikGradientBar::colorAt(int value) const
{
    const double t = value / double(maxValue - minValue);
    const auto mix = [t](int start, int end) { return truncated(start + (end - start) * t); };
    QColor color;
    color.setRgb(mix(m_startColor.red(), m_endColor.red()), mix(m_startColor.green(), m_endColor.green()),
                 mix(m_startColor.blue(), m_endColor.blue()),
                 mix(m_startColor.alpha(), m_endColor.alpha()));
    return color;
}

void TavikGradientBar::refreashGradient()
{
    m_gradient = QLinearGradient(0, 0, 1, 0);
    m_gradient.setColorAt(0, m_startColor);
    m_gradient.setColorAt(1, m_endColor);
    m_gradient.setCoordinateMode(QGradient::StretchToDeviceMode);
    update();
}

void TavikGradientBar::mousePressEvent(QMouseEvent *event)
{
    const QPoint pos = event->pos();
    m_startPressed = m_startHandle.contains(pos);
    m_endPressed = !m_startPressed && m_endHandle.contains(pos);
    if (m_startPressed || m_endPressed)
        return;
    if (m_startSquare.contains(pos))
        requestPopup(StartSide, m_startSquare, m_startColor);
    else if (m_endSquare.contains(pos))
        requestPopup(EndSide, m_endSquare, m_endColor);
}

void TavikGradientBar::mouseReleaseEvent(QMouseEvent *)
{
    m_startPressed = false;
    m_endPressed = false;
    update();
}

void TavikGradientBar::mouseMoveEvent(QMouseEvent *event)
{
    const int value = valueAt(event->pos().x());
    if (m_startPressed)
        dragStart(value);
    else if (m_endPressed)
        dragEnd(value);
    else
        update();
}

void TavikGradientBar::paintEvent(QPaintEvent *)
{
    // The mouse is tested against the handles as they were painted last, also while their values are ahead.
    m_startHandle.moveCenter(handleCenter(m_startValue));
    m_endHandle.moveCenter(handleCenter(m_endValue));

    QPainter painter(this);
    painter.setPen(QPen(QColor(0xd3d3d3), 1));
    const QBrush texture = Swatch::texture();
    paintSquare(painter, m_startSquare, texture, m_startColor);
    paintSquare(painter, m_endSquare, texture, m_endColor);
    Swatch::paint(painter, m_barRect, texture, m_gradient);
    paintHandle(painter, m_startHandle, m_startPressed);
    paintHandle(painter, m_endHandle, m_endPressed);
}

QRect TavikGradientBar::innerSquare(const QRect &square) const
{
    QRect inner(0, 0, m_barRect.height(), m_barRect.height());
    inner.moveCenter(square.center());
    return inner;
}

QPoint TavikGradientBar::handleCenter(int value) const
{
    const double x = value / double(maxValue - minValue) * m_barRect.width() + m_startSquare.width() + 1;
    // No widget is larger than that, so a handle beyond is out of sight either way.
    const int pos = int(qBound<double>(-QWIDGETSIZE_MAX, x, QWIDGETSIZE_MAX));
    return {pos + m_startHandle.width() + 1, rect().center().y()};
}

int TavikGradientBar::valueAt(int x) const
{
    // A bar without a width gives infinity or no number, which no drag accepts.
    return truncated((double(x) - m_barRect.left()) / m_barRect.width() * (maxValue - minValue));
}

void TavikGradientBar::requestPopup(Side side, const QRect &square, const QColor &color)
{
    m_selectedSide = side;
    Q_EMIT colorPopupRequest(mapToGlobal(QPoint(square.center().x(), square.bottom())), color);
}

void TavikGradientBar::dragStart(int value)
{
    if (value < minValue || value >= m_endValue)
        return;
    m_startValue = value;
    Q_EMIT selectedStartColor(colorAt(value));
    update();
}

void TavikGradientBar::dragEnd(int value)
{
    if (value > maxValue || value <= m_startValue)
        return;
    m_endValue = value;
    Q_EMIT selectedEndColor(colorAt(value));
    update();
}

void TavikGradientBar::paintSquare(QPainter &painter, const QRect &square, const QBrush &texture,
                                   const QColor &color) const
{
    painter.setBrush(QColor(0xffffff));
    painter.drawRect(square);
    Swatch::paint(painter, innerSquare(square), texture, color);
}

void TavikGradientBar::paintHandle(QPainter &painter, const QRect &handle, bool isPressed)
{
    painter.setBrush(QColor(isPressed ? 0xe8e8e8 : 0xffffff));
    painter.drawRect(handle);
}
