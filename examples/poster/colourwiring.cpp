#include "colourwiring.h"

#include <Tavik/TavikColorButton>
#include <Tavik/TavikColorPopup>
#include <Tavik/TavikGradientBar>

ColourWiring::ColourWiring(QWidget *window)
    : QObject(window)
    , m_popup(new TavikColorPopup(window))
{
    connect(m_popup, &TavikColorPopup::colorChanged, this, [this](const QColor &color) {
        // It is invalid while a hexadecimal value is being typed. The sampler's colour comes here as well, when
        // the popup is closed already: the answer stays until another control asks. In eight bits a channel
        // it is what a file keeps.
        if (color.isValid() && m_answer)
            m_answer(QColor::fromRgba(color.rgba()));
    });
}

void ColourWiring::serve(TavikColorButton *button)
{
    connect(button, &TavikColorButton::showPopup, this, [=](const QPoint &pos, const QColor &color) {
        open(pos, color, [=](const QColor &answer) { button->setCurrentColor(answer); });
    });
}

void ColourWiring::serve(TavikGradientBar *bar)
{
    connect(bar, &TavikGradientBar::colorPopupRequest, this, [=](const QPoint &pos, const QColor &color) {
        const bool isStart = bar->selectedSide() == TavikGradientBar::StartSide;
        open(pos, color, [=](const QColor &answer) {
            isStart ? bar->setStartColor(answer) : bar->setEndColor(answer);
        });
    });
}

void ColourWiring::open(const QPoint &pos, const QColor &color, const Answer &answer)
{
    m_answer = answer;
    m_popup->showColorPopup(pos, color);
}
