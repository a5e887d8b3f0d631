#include "containers/paneltitle_p.h"

#include "buttons/tavikbutton.h"
#include "buttons/taviklabel.h"
#include "containers/tavikcontainer.h"
#include "containers/tavikexpandable.h"

PanelTitle::PanelTitle(TavikExpandable *panel)
    : m_panel(panel)
{
}

bool PanelTitle::isExpanded() const
{
    return m_panel->m_expanded;
}

QWidget *PanelTitle::arrow() const
{
    return m_panel->m_expandButton;
}

QWidget *PanelTitle::content() const
{
    return m_panel->m_innerContainer;
}

int PanelTitle::count() const
{
    return 1;
}

QRect PanelTitle::rect(int) const
{
    return m_panel->m_titleBar->geometry();
}

QString PanelTitle::name(int) const
{
    return m_panel->m_titleLabel->text();
}

QWidget *PanelTitle::widget(int) const
{
    return m_panel->m_titleBar;
}

void PanelTitle::press(int)
{
    m_panel->m_expandButton->click();
}

void PanelTitle::follow(QObject *context, const std::function<void(int)> &changed) const
{
    QObject::connect(m_panel, &TavikExpandable::animationStarted, context, [=] { changed(0); });
}
