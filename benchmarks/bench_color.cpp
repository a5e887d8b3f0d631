#include "benches.h"
#include "comparison.h"

#include "../tests/plaincolor.h"

#include <Tavik/TavikColorPicker>
#include <Tavik/TavikColorSilder>

#include <QApplication>

#include <memory>

namespace {

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
    const auto plain = std::make_shared<Plain::Slider>(166, 16);
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
