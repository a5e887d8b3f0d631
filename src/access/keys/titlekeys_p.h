#ifndef TAVIK_TITLEKEYS_P_H
#define TAVIK_TITLEKEYS_P_H

#include "access/keys/controlkeys_p.h"

#include <memory>

class PanelTitle;
class TavikExpandable;

/// Lets Space and Return on the title of an expandable panel open and close it. The arrow beside the title
/// then needs no focus of its own, and the content of a closed panel takes none.
class TitleKeys : public ControlKeys
{
    Q_OBJECT

public:
    TitleKeys(TavikExpandable *panel, std::unique_ptr<PanelTitle> title);
    ~TitleKeys() override;

    QWidget *marked() const override;

protected:
    bool press(const QKeyEvent &key) override;

private:
    void updateContent();

    TavikExpandable *m_panel;
    std::unique_ptr<PanelTitle> m_title;
};

#endif
