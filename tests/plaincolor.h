#ifndef TAVIK_TESTS_PLAINCOLOR_H
#define TAVIK_TESTS_PLAINCOLOR_H

#include <QGraphicsDropShadowEffect>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QSlider>
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

class Slider : public QSlider
{
public:
    Slider(int width, int height)
        : QSlider(Qt::Horizontal)
    {
        setFixedSize(width, height);
    }

    QVector<QColor> colors;
    QBrush texture;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QLinearGradient gradient(0, 0, orientation() == Qt::Horizontal, orientation() == Qt::Vertical);
        gradient.setCoordinateMode(QGradient::StretchToDeviceMode);
        for (int i = 0; i < colors.size(); ++i)
            gradient.setColorAt(i / double(colors.size() - 1), colors.at(i));

        QPainter painter(this);
        const QRect groove(QPoint(3, 3), QPoint(width() - 10, height() - 7));
        painter.setPen(QPen(QBrush(QColor("#404040")), 0.5, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        painter.setBrush(texture);
        painter.drawRects(&groove, 1);
        painter.setBrush(colors.isEmpty() ? QBrush() : QBrush(gradient));
        painter.drawRects(&groove, 1);
        const double share = (double(value()) - minimum()) / (maximum() - minimum());
        const int top = (height() - 1) / 2 - (height() - 4) / 2;
        painter.setBrush(QBrush(Qt::white));
        painter.drawRect(QRect(QPoint(int(share * (width() - 12)), top),
                               QPoint(int(share * (width() - 12)) + 6, top + height() - 4)));
    }
};

} // namespace Plain

#endif
