#include "color/tavikcolorpicker.h"

#include "color/hsvsquare_p.h"
#include "foundation/lenconverter.h"

#include <QMouseEvent>
#include <QPainter>

#include <limits>

namespace {

/// The colour of a hue; where the toolkit refuses it, the old one, which Qt 6 makes invalid then.
QColor withHsv(const QColor &old, double hue, double saturation, double value)
{
    QColor color = old;
    color.setHsvF(hue, saturation, value, 1.0);
    return color.isValid() ? color : old;
}

} // namespace

TavikColorPicker::TavikColorPicker(const int &width, const int &height, QWidget *parent)
    : QWidget(parent)
{
    setFixedSize(width, height);
    m_width = QWidget::width() - 2;
    m_height = QWidget::height() - 2;
    setAccessibleName(tr("Saturation and value"));
}

TavikColorPicker::TavikColorPicker(QWidget *parent)
    : TavikColorPicker(LenConverter::iniRemToPx(190), LenConverter::iniRemToPx(136), parent)
{
}

int TavikColorPicker::currentHue() const
{
    return int(m_hue);
}

void TavikColorPicker::setCurrentHue(double hue)
{
    // So that currentHue() can cut it. NaN ends at the lower bound, and is refused as any hue outside.
    using Int = std::numeric_limits<int>;
    m_hue = qBound(double(Int::min()), hue, double(Int::max()));
    update();
}

QColor TavikColorPicker::currentColor() const
{
    return m_color;
}

void TavikColorPicker::setCurrentColor(const QColor &color)
{
    m_color = color;
}

void TavikColorPicker::updateColors()
{
    if (isEmpty() || (!m_image.isNull() && m_imageHue == m_hue))
        return;
    if (m_image.isNull()) // of a size that stays
        m_image = QImage(m_width, m_height, QImage::Format_RGB32);
    HsvSquare::fill(m_image, m_hue);
    m_imageHue = m_hue;
}

void TavikColorPicker::updateSelectedColor(int x, int y)
{
    if (isEmpty() || x < 0 || x > m_width || y < 0 || y > m_height)
        return;
    const double saturation = double(x) / m_width;
    const double value = 1.0 - double(y) / m_height;
    m_color = withHsv(m_color, m_hue, saturation, value);
    update();
    Q_EMIT colorChanged(m_color);
}

void TavikColorPicker::mousePressEvent(QMouseEvent *event)
{
    QWidget::mousePressEvent(event);
    if (event->button() != Qt::LeftButton)
        return;
    m_pressed = true;
    updateSelectedColor(event->pos().x(), event->pos().y());
}

void TavikColorPicker::mouseReleaseEvent(QMouseEvent *event)
{
    QWidget::mouseReleaseEvent(event);
    m_pressed = false;
}

void TavikColorPicker::mouseMoveEvent(QMouseEvent *event)
{
    QWidget::mouseMoveEvent(event);
    if (m_pressed)
        updateSelectedColor(event->pos().x(), event->pos().y());
}

void TavikColorPicker::paintEvent(QPaintEvent *)
{
    updateColors();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintSquare(painter);
    paintCircle(painter);
}

bool TavikColorPicker::isEmpty() const
{
    return m_width < 1 || m_height < 1;
}

QRectF TavikColorPicker::circle() const
{
    return {m_width * m_color.saturationF() - 5, (1.0 - m_color.valueF()) * m_height - 5, 10, 10};
}

void TavikColorPicker::paintSquare(QPainter &painter) const
{
    painter.drawImage(QRectF(0, 0, m_width, m_height), m_image,
                      QRectF(0, 0, m_image.width(), m_image.height()));
}

void TavikColorPicker::paintCircle(QPainter &painter) const
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(m_color.valueF() > 0.5 ? Qt::black : Qt::white, 1.0));
    painter.drawEllipse(circle());
}
