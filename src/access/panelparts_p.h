#ifndef TAVIK_PANELPARTS_P_H
#define TAVIK_PANELPARTS_P_H

#include "buttons/tavikbutton.h"
#include "buttons/taviklabel.h"
#include "containers/tavikcontainer.h"
#include "containers/tavikexpandable.h"

/// What an expandable panel has no getter for.
class PanelParts
{
public:
    static bool isExpanded(const TavikExpandable *panel) { return panel->m_expanded; }
    static QString title(const TavikExpandable *panel) { return panel->m_titleLabel->text(); }
    static QWidget *titleBar(const TavikExpandable *panel) { return panel->m_titleBar; }
    static QWidget *content(const TavikExpandable *panel) { return panel->m_innerContainer; }
    static TavikButton *arrow(const TavikExpandable *panel) { return panel->m_expandButton; }
};

#endif
