#ifndef TAVIK_POPUPPARTS_P_H
#define TAVIK_POPUPPARTS_P_H

class QWidget;
class Sampling;
class TavikColorPopup;

/// What a colour popup offers to the keyboard.
class PopupParts
{
public:
    explicit PopupParts(TavikColorPopup *popup);

    /// What has the focus first.
    QWidget *square() const;

    const Sampling *sampling() const;

private:
    TavikColorPopup *m_popup;
};

#endif
