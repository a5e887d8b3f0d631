#include "popupwiring.h"

#include <Tavik/TavikColorButton>
#include <Tavik/TavikColorPopup>
#include <Tavik/TavikGradientBar>

PopupWiring::PopupWiring(QWidget *window)
    : QObject(window)
    , m_popup(new TavikColorPopup(window))
{
}

void PopupWiring::serve(TavikColorButton *button)
{
    connect(button, &TavikColorButton::showPopup, this,
            [this, button](const QPoint &pos, const QColor &color) {
                answerTo(button, [button](const QColor &chosen) { button->setCurrentColor(chosen); });
                m_popup->showColorPopup(pos, color);
            });
}

void PopupWiring::serve(TavikGradientBar *bar)
{
    connect(bar, &TavikGradientBar::colorPopupRequest, this,
            [this, bar](const QPoint &pos, const QColor &color) {
                const bool isStart = bar->selectedSide() == TavikGradientBar::StartSide;
                answerTo(bar, [=](const QColor &chosen) {
                    isStart ? bar->setStartColor(chosen) : bar->setEndColor(chosen);
                });
                m_popup->showColorPopup(pos, color);
            });
}

void PopupWiring::answerTo(QWidget *control, const std::function<void(const QColor &)> &take)
{
    disconnect(m_answer);
    m_answer = connect(m_popup, &TavikColorPopup::colorChanged, control, [=](const QColor &chosen) {
        if (chosen.isValid()) // a half-typed hexadecimal value is not
            take(chosen);
    });
}
