#ifndef TAVIK_SCREENSHOT_P_H
#define TAVIK_SCREENSHOT_P_H

#include <QRect>
#include <QWidget>

#include <memory>

class PaintMouseRect;

/// One run of the screen sampler: a window over the whole screen that shows the desktop as it was when the
/// run began, with a frame beside the pointer. It shows itself; the left button or Alt picks the colour
/// that the frame shows, Escape leaves without one, and every other button and key does nothing.
///
///     auto *screenshot = new Screenshot(nullptr);
///     connect(screenshot, SIGNAL(screenColor(QColor)), this, SLOT(onPickColorChanged(QColor)));
///
/// The pointer's position in the window, as the toolkit counts it, is the pixel that is read. With a device
/// pixel ratio of 1 this is the pixel under the pointer; with 2 it stands half as far from the top left
/// corner as that one.
///
/// A platform may refuse to tell what is on the screen. There, and wherever the pointer is outside the
/// picture, no colour can be had: the frame stays without one, and picking ends the run with no signal.
///
/// Closing deletes nothing; who made the window also deletes it.
class Screenshot : public QWidget
{
    Q_OBJECT

public:
    /// Takes the picture of the desktop, the only one of the run, and shows the window.
    explicit Screenshot(QWidget *parent);

    /// Where the pointer is on the desktop; in the middle of the primary screen while the toolkit has not seen it
    /// on any, as it may be where the platform does not tell.
    static QPoint pointer();

    /// Moves the frame as the pointer at a position does, in pixels of the window. Once the window is on the screen, it
    /// reads the colour there at once: the next call may be pick().
    void moveTo(const QPoint &pos);

    /// Picks the colour that the frame shows, and closes.
    void pick();

Q_SIGNALS:
    /// The pointer has moved to this position in the window, in pixels.
    void cursorPosChange(int x, int y);

    /// A colour was picked, always an opaque one. Emitted at most once, right before the window closes; the
    /// receiver may delete it.
    void screenColor(const QColor &color);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void grabDesktop();
    void createPaintMouseRect();

    /// False if a receiver has deleted the sampler.
    bool emitColor();

    // The frame is a child too. As the last field it is released first, and has left the children before
    // the base class deletes them.
    QRect m_desktopRect;
    std::shared_ptr<QPixmap> m_backgroundPixmap;
    std::shared_ptr<QPixmap> m_grabbedPixmap;
    std::shared_ptr<PaintMouseRect> m_paintMouseRect;
};

#endif
