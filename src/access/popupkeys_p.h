#ifndef TAVIK_POPUPKEYS_P_H
#define TAVIK_POPUPKEYS_P_H

#include <QObject>

class TavikColorPopup;

/// Begins a popup's round of focus at its square, and gives keys to the samplers that it opens.
class PopupKeys : public QObject
{
    Q_OBJECT

public:
    explicit PopupKeys(TavikColorPopup *popup);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    TavikColorPopup *popup() const;
};

#endif
