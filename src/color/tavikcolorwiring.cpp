#include "color/tavikcolorwiring.h"

#include "color/tavikcolorbutton.h"
#include "color/tavikcolorpopup.h"
#include "color/tavikgradientbar.h"

TavikColorWiring::TavikColorWiring(QWidget *window)
    : QObject(window)
    , m_popup(new TavikColorPopup(window))
{
}

TavikColorWiring::~TavikColorWiring()
{
    delete m_popup;
}

TavikColorPopup *TavikColorWiring::popup() const
{
    return m_popup;
}

void TavikColorWiring::serve(TavikColorButton *button)
{
    if (!button)
        return;
    disconnect(button, &TavikColorButton::showPopup, &m_requests, nullptr);
    connect(button, &TavikColorButton::showPopup, &m_requests, [=](const QPoint &pos, const QColor &color) {
        open(button, pos, color, [=](const QColor &chosen) { button->setCurrentColor(chosen); });
    });
}

void TavikColorWiring::serve(TavikGradientBar *bar)
{
    if (!bar)
        return;
    disconnect(bar, &TavikGradientBar::colorPopupRequest, &m_requests, nullptr);
    connect(bar, &TavikGradientBar::colorPopupRequest, &m_requests,
            [=](const QPoint &pos, const QColor &color) {
                // Another side may be selected while the popup is open.
                const auto set = bar->selectedSide() == TavikGradientBar::StartSide
                                     ? &TavikGradientBar::setStartColor
                                     : &TavikGradientBar::setEndColor;
                open(bar, pos, color, [=](const QColor &chosen) { (bar->*set)(chosen); });
            });
}

void TavikColorWiring::open(QWidget *control, const QPoint &pos, const QColor &color, const Take &take)
{
    if (!m_popup)
        return;
    disconnect(m_answer);
    m_answer = connect(m_popup, &TavikColorPopup::colorChanged, control, [=](const QColor &chosen) {
        if (chosen.isValid())
            take(chosen);
    });
    m_popup->showColorPopup(pos, color);
}
