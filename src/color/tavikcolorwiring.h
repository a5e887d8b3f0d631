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

/// One colour popup for any number of colour controls: it opens for each that asks, and its colours go to the one
/// that asked last.
///
/// \code
/// auto *wiring = new TavikColorWiring(this);
/// wiring->serve(fillButton);
/// wiring->serve(lineButton);
/// wiring->serve(gradientBar);
/// connect(fillButton, &TavikColorButton::colorChanged, shape, &Shape::setFill);
/// \endcode
///
/// | Control          | Asks by             | Gets the colour by             | Tells it by           |
/// |------------------|---------------------|--------------------------------|-----------------------|
/// | TavikColorButton | showPopup()         | setCurrentColor()              | colorChanged()        |
/// | TavikGradientBar | colorPopupRequest() | setStartColor(), setEndColor() | selectedStartColor(), |
/// |                  |                     |                                | selectedEndColor()    |
///
/// A control gets the colour at each step of a drag, at each key, from the palette, and from the screen, also when
/// the popup has closed by then. Of a bar it is the end whose square asked, whichever is selected later. An invalid
/// colour, such as a half-typed hexadecimal value, goes to nobody: the control keeps the last one that was valid. A
/// control that is deleted is forgotten; until another asks, nobody hears what the popup tells.
///
/// It stands on public signals and functions alone: an application that wants one of these steps otherwise connects
/// a TavikColorPopup and its controls itself.
class TAVIK_EXPORT TavikColorWiring : public QObject
{
    Q_OBJECT

public:
    /// A wiring with a popup of its own. Both belong to the window that the popup opens over; without one, the
    /// wiring belongs to nobody, and the popup to the wiring.
    explicit TavikColorWiring(QWidget *window = nullptr);

    /// Deletes the popup too. Within a signal of the popup, or of a control that gets its colour just then, call
    /// deleteLater() instead.
    ~TavikColorWiring() override;

    /// The popup, to be watched. What is chosen after it was opened by hand still goes to the control that asked
    /// last. Null once somebody has deleted it: then no request is answered any more.
    TavikColorPopup *popup() const;

    /// Opens the popup whenever the button asks, and sets the button's colour. Emits nothing. A button that is
    /// served already, or none at all, changes nothing.
    void serve(TavikColorButton *button);

    /// Opens the popup whenever a square of the bar asks, and sets the colour of that end. Emits nothing. A bar that
    /// is served already, or none at all, changes nothing.
    void serve(TavikGradientBar *bar);

private:
    using Take = std::function<void(const QColor &)>;

    void open(QWidget *control, const QPoint &pos, const QColor &color, const Take &take);

    QPointer<TavikColorPopup> m_popup;
    QObject m_requests;               // stands for this in the requests' connections, and in no others
    QMetaObject::Connection m_answer; // to the control that asked last
};

#endif
