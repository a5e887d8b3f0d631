#ifndef TAVIK_TESTS_PLAINCOLOR_H
#define TAVIK_TESTS_PLAINCOLOR_H

#include <QGraphicsDropShadowEffect>
#include <QImage>
#include <QPainter>
#include <QWidget>

/// The colour controls painted in the plain way, step by step with nothing kept: what ours must look like,
/// and be faster than.
namespace Plain {

inline QImage square(double hue, int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int x = 0; x < width; ++x) {
        for (int y = 0; y < height; ++y) {
            const double saturation = double(x) / width;
            const double value = double(height - y) / height;
            image.setPixel(x, y, QColor::fromHsvF(hue, saturation, value, 1.0).rgb());
        }
    }
    return image;
}

/// The popup's shadow, blurred anew whenever something in the popup is painted.
inline void addShadow(QWidget *popup)
{
    auto *effect = new QGraphicsDropShadowEffect(popup);
    effect->setOffset(QPointF(0, 0));
    effect->setColor(Qt::black);
    effect->setBlurRadius(5);
    popup->setGraphicsEffect(effect);
}

class Picker : public QWidget
{
public:
    Picker(int width, int height) { setFixedSize(width, height); }

    double hue = 0;
    QColor color;

protected:
    void paintEvent(QPaintEvent *) override
    {
        const int w = width() - 2;
        const int h = height() - 2;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawImage(QRectF(0, 0, w, h), square(hue, w, h), QRectF(0, 0, w, h));
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(QBrush(color.valueF() > 0.5 ? Qt::black : Qt::white), 1.0, Qt::SolidLine,
                            Qt::SquareCap, Qt::BevelJoin));
        painter.drawEllipse(QRectF(w * color.saturationF() - 5, (1.0 - color.valueF()) * h - 5, 10, 10));
    }
};

} // namespace Plain

#endif
