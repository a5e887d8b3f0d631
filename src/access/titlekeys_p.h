#ifndef TAVIK_TITLEKEYS_P_H
#define TAVIK_TITLEKEYS_P_H

#include "access/controlkeys_p.h"

class TavikExpandable;

/// Lets Space and Return on the title of an expandable panel open and close it. The arrow beside the title
/// then needs no focus of its own, and the content of a closed panel takes none.
class TitleKeys : public ControlKeys
{
    Q_OBJECT

public:
    explicit TitleKeys(TavikExpandable *panel);

    QWidget *marked() const override;

protected:
    bool press(const QKeyEvent &key) override;

private:
    void updateContent();
    TavikExpandable *panel() const;
};

#endif
