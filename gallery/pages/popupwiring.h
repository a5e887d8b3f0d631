#ifndef GALLERY_POPUPWIRING_H
#define GALLERY_POPUPWIRING_H

#include <QObject>

#include <functional>

class QColor;
class QWidget;
class TavikColorButton;
class TavikColorPopup;
class TavikGradientBar;

/// One colour popup for any number of controls: it answers the one that asked last.
class PopupWiring : public QObject
{
    Q_OBJECT

public:
    /// Makes the popup, which belongs to the window that it opens over.
    explicit PopupWiring(QWidget *window);

    /// Opens the popup for a button, and gives the button its colours.
    void serve(TavikColorButton *button);

    /// Opens the popup for either end of a bar, and gives that end its colours.
    void serve(TavikGradientBar *bar);

    TavikColorPopup *popup() const { return m_popup; }

private:
    /// From now on, until another control asks.
    void answerTo(QWidget *control, const std::function<void(const QColor &)> &take);

    TavikColorPopup *m_popup;
    QMetaObject::Connection m_answer; // to the control that asked last
};

#endif
