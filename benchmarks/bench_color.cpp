#include "benches.h"
#include "comparison.h"

#include "../tests/plaincolor.h"

#include <Tavik/TavikColorPicker>
#include <Tavik/TavikColorSilder>

#include <QApplication>
#include <QLinearGradient>
#include <QPainter>
#include <QSlider>

#include <memory>

namespace {

/// The colour slider painted in the plain way, with its gradient set stop by stop.
class PlainSlider : public QSlider
{
public:
    PlainSlider(int width, int height)
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

// One round takes microseconds, which the start and the end of a measurement would blur.
constexpr int rounds = 20;

Work times(const std::function<void(int round)> &work)
{
    return [work] {
        for (int round = 0; round < rounds; ++round)
            work(round);
        return [] {};
    };
}

Work repaints(const std::shared_ptr<QWidget> &widget)
{
    widget->show();
    return times([widget](int) { widget->repaint(); });
}

void registerSquare(const QSize &size)
{
    const std::string name = std::to_string(size.width()) + "x" + std::to_string(size.height());
    const auto hue = [](int round) { return (round + 0.5) / rounds; };

    const QSize outer = size + QSize(2, 2);
    const auto picker = std::make_shared<TavikColorPicker>(outer.width(), outer.height());
    compare("20 squares of " + name, 1 / 25.0, times([picker, hue](int round) {
                picker->setCurrentHue(hue(round));
                picker->updateColors();
            }),
            times([size, hue](int round) { Plain::square(hue(round), size.width(), size.height()); }));

    const auto ours = std::make_shared<TavikColorPicker>(outer.width(), outer.height());
    const auto plain = std::make_shared<Plain::Picker>(outer.width(), outer.height());
    compare("20 repaints of " + name + ", same hue", 1 / 60.0, repaints(ours), repaints(plain));
}

void registerSlider()
{
    const auto ours = std::make_shared<TavikColorSilder>(166, 16, TavikColorSilder::Alpha);
    const auto plain = std::make_shared<PlainSlider>(166, 16);
    plain->setRange(ours->minimum(), ours->maximum());
    plain->colors = ours->colors();
    plain->texture.setTexture(QPixmap(QStringLiteral(":/Color/images/alpha_texture.png")));
    compare("20 repaints of an alpha slider", 0.7, repaints(ours), repaints(plain));
}

} // namespace

void registerColor()
{
    for (const QSize &size : {QSize(188, 134), QSize(283, 202), QSize(473, 338)})
        registerSquare(size);
    registerSlider();
    QCoreApplication::processEvents(); // a window that was not exposed yet would not be painted
}
