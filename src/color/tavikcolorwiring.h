#ifndef TAVIK_TAVIKCOLORWIRING_H
#define TAVIK_TAVIKCOLORWIRING_H

#include <QObject>
#include <QPointer>

#include <Tavik/tavik_export.h>

#include <functional>

class QColor;
class QPoint;
class QWidget;
class TavikColorButton;
class TavikColorPopup;
class TavikGradientBar;

/// Opens one colour popup for any number of colour controls, and gives its colours to the one that asked last.
///
/// \code
/// auto *wiring = new TavikColorWiring(this);
/// wiring->serve(fillButton);
/// wiring->serve(lineButton);
/// wiring->serve(gradientBar);
/// connect(fillButton, &TavikColorButton::colorChanged, shape, &Shape::setFill);
/// \endcode
///
/// A control takes each step: of a drag, of the keys, from the palette and from the screen, which answers when the
/// popup is closed already. An invalid colour, as a half-typed hexadecimal value is one, goes to nobody. A control
/// that is deleted is forgotten, and nobody hears what its popup still tells.
///
/// Without it an application makes these connections itself, each as it likes.
class TAVIK_EXPORT TavikColorWiring : public QObject
{
    Q_OBJECT

public:
    /// A wiring with a popup of its own. Both belong to the window that the popup opens over; without one, the
    /// wiring belongs to nobody, and the popup to the wiring.
    explicit TavikColorWiring(QWidget *window = nullptr);

    /// Deletes the popup too. A slot that runs within a signal of the popup may call deleteLater() instead.
    ~TavikColorWiring() override;

    /// The popup, to be watched. Who opens it by hand finds that its colours still go to the control that asked
    /// last. Null once somebody has deleted it: then no request is answered any more.
    TavikColorPopup *popup() const;

    /// Opens the popup whenever the button asks, and sets the button's colour. Asked twice, or without a button,
    /// it does nothing more.
    void serve(TavikColorButton *button);

    /// Opens the popup whenever a square of the bar asks, and sets the colour of that end. Asked twice, or without
    /// a bar, it does nothing more.
    void serve(TavikGradientBar *bar);

private:
    using Take = std::function<void(const QColor &)>;

    void open(QWidget *control, const QPoint &pos, const QColor &color, const Take &take);

    QPointer<TavikColorPopup> m_popup;
    QMetaObject::Connection m_answer; // to the control that asked last
};

#endif
