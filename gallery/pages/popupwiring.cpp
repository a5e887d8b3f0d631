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
                disconnect(m_answer);
                m_answer = connect(m_popup, &TavikColorPopup::colorChanged, button,
                                   &TavikColorButton::setCurrentColor);
                m_popup->showColorPopup(pos, color);
            });
}

void PopupWiring::serve(TavikGradientBar *bar)
{
    connect(bar, &TavikGradientBar::colorPopupRequest, this,
            [this, bar](const QPoint &pos, const QColor &color) {
                const bool isStart = bar->selectedSide() == TavikGradientBar::StartSide;
                disconnect(m_answer);
                m_answer =
                    connect(m_popup, &TavikColorPopup::colorChanged, bar,
                            isStart ? &TavikGradientBar::setStartColor : &TavikGradientBar::setEndColor);
                m_popup->showColorPopup(pos, color);
            });
}
