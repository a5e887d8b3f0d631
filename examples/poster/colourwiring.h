#ifndef POSTER_COLOURWIRING_H
#define POSTER_COLOURWIRING_H

#include <QObject>

#include <functional>

class QColor;
class QPoint;
class TavikColorButton;
class TavikColorPopup;
class TavikGradientBar;

/// The wiring of all colours: one popup, with its sampler, for every control that has a colour.
///
/// | Control          | Asks for the popup by | Gets the colour by                 | Tells it by           |
/// |------------------|-----------------------|------------------------------------|-----------------------|
/// | TavikColorButton | showPopup()           | setCurrentColor()                  | colorChanged()        |
/// | TavikGradientBar | colorPopupRequest()   | setStartColor() or setEndColor()   | selectedStartColor(), |
/// |                  |                       |                                    | selectedEndColor()    |
class ColourWiring : public QObject
{
    Q_OBJECT

public:
    /// Makes the popup, which belongs to the window that it opens over.
    explicit ColourWiring(QWidget *window);

    /// Opens the popup for a button, and gives the button its colours.
    void serve(TavikColorButton *button);

    /// Opens the popup for either end of a bar, and gives that end its colours.
    void serve(TavikGradientBar *bar);

private:
    using Answer = std::function<void(const QColor &)>;

    void open(const QPoint &pos, const QColor &color, const Answer &answer);

    TavikColorPopup *m_popup;
    Answer m_answer; // to the control that asked last
};

#endif
