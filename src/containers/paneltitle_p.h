#ifndef TAVIK_PANELTITLE_P_H
#define TAVIK_PANELTITLE_P_H

#include "foundation/controlparts_p.h"

class TavikExpandable;

/// The one part of an expandable panel: its title, which opens and closes it.
class PanelTitle : public ControlParts
{
public:
    explicit PanelTitle(TavikExpandable *panel);

    /// Whether the panel is open, or on the way there.
    bool isExpanded() const;

    /// The button beside the title.
    QWidget *arrow() const;

    /// What a closed panel shows nothing of.
    QWidget *content() const;

    int count() const override;
    QRect rect(int part) const override;
    QString name(int part) const override;
    QWidget *widget(int part) const override;
    void press(int part) override;
    void follow(QObject *context, const std::function<void(int)> &changed) const override;

private:
    TavikExpandable *m_panel;
};

#endif
