#ifndef TAVIK_TAVIKCOLORPOPUP_H
#define TAVIK_TAVIKCOLORPOPUP_H

#include <QColor>
#include <QWidget>

#include <Tavik/tavik_export.h>

#include <memory>

class PopupControls;
class PopupOutline;
class QVBoxLayout;
class Sampling;
class TavikLineEdit;

/// A colour chooser in a small window with an arrow that points to the control that asked for it.
///
/// It holds a saturation/value square, sliders for hue and alpha, fields for hexadecimal, RGB, alpha and CMY
/// values, a palette, and a sampler that takes a colour from anywhere on the screen. One popup can serve any number
/// of controls: TavikColorWiring makes one and connects it. For a single button it can be done by hand:
/// \code
/// auto *popup = new TavikColorPopup(this);
/// connect(button, &TavikColorButton::showPopup, popup, &TavikColorPopup::showColorPopup);
/// connect(popup, &TavikColorPopup::colorChanged, button, [=](const QColor &color) {
///     if (color.isValid()) // a half-typed hexadecimal value is not
///         button->setCurrentColor(color);
/// });
/// \endcode
///
/// Open it by showColorPopup(): show() alone gives neither the outline nor the colour. It closes on a press
/// outside.
///
/// While a hexadecimal value is typed, colorChanged() may carry an invalid colour. A number above 255 counts as
/// 255, though a field may show it, or another such number in its place. A hue is kept in whole degrees
/// by its slider: what the square or a slider changes takes that hue.
///
/// The sampler shows a picture of the screen as it was when its button was clicked, the popup included. Left
/// button or Alt take the colour beside the pointer, Escape leaves everything as it was. Where the platform
/// gives no picture of the screen, as on Wayland, or the pointer stands outside it, there is no colour to take:
/// left button and Alt then only end the sampling. On a screen with a scale factor the picture has more pixels
/// than the window has coordinates, and the colour is the one of the pixel with the pointer's coordinates.
class TAVIK_EXPORT TavikColorPopup : public QWidget
{
    Q_OBJECT

public:
    /// A popup with a colour. Its controls take the colour at the first setCurrentColor() or showColorPopup().
    explicit TavikColorPopup(const QColor &color = Qt::white, QWidget *parent = nullptr);

    /// A white popup.
    explicit TavikColorPopup(QWidget *parent);

    ~TavikColorPopup() override;

    /// The colour, as it was last given or chosen.
    QColor currentColor() const;

public Q_SLOTS:
    /// Sets the colour in all controls. Emits nothing. A grey has no hue, so the square shows greys alone until
    /// the hue slider is moved, while a drag in it gives colours of hue 0. An invalid colour stays one and shows
    /// as black.
    void setCurrentColor(const QColor &currentColor);

    /// Opens the popup with a colour at a global point, in pixels: below it, or above it where there is no room
    /// below on the primary screen. Sideways it always has its arrow at the point, also where it then stands
    /// partly off the screen. A grey gets the hue 0, so that the square shows colours; an invalid colour stays
    /// one and shows as black. Emits nothing.
    void showColorPopup(const QPoint &pos, const QColor &color);

Q_SIGNALS:
    /// The user has changed the colour. Emitted for each step of a drag, each key, and each colour taken from
    /// the palette or the screen; twice for a key that makes a field write its number anew, as "007" to "7".
    ///
    /// A slot may call deleteLater() on the popup, but must not let an event loop of its own delete it: the popup
    /// is still at work then.
    void colorChanged(QColor color);

    /// The sampler has delivered a colour, or the popup was hidden after the sampler was started and has
    /// delivered none: it runs, or was left by Escape.
    void colorPopupHide();

protected:
    void paintEvent(QPaintEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private Q_SLOTS:
    void onHueChanged(int value);
    void onAlphaChanged(int value);
    void onSatValChanged();
    void onHexEditChanged();
    void onREditChanged();
    void onGEditChanged();
    void onBEditChanged();
    void onAEditChanged();
    void onCEditChanged();
    void onMEditChanged();
    void onYEditChanged();
    void onColorWellSelected(const QColor &color);
    void onAddColorWellRequested();
    void onClickPickColor();
    void onPickColorChanged(const QColor &color);

private:
    friend class PopupParts;

    void buildWindow();
    void connectControls();

    void takeFromControls();
    void followChannel(void (QColor::*set)(int), const TavikLineEdit *typed, TavikLineEdit *partner);
    void followField();

    void adjustPosition();

    QVBoxLayout *m_mainLayout;
    std::unique_ptr<PopupControls> m_controls;
    std::unique_ptr<PopupOutline> m_outline;
    QColor m_currentColor;
    QPoint m_anchor;
    std::unique_ptr<Sampling> m_sampling;
};

#endif
