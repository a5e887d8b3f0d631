#ifndef TAVIK_TESTS_KNOWNPICTURE_H
#define TAVIK_TESTS_KNOWNPICTURE_H

#include "support.h"

#include <QPainter>
#include <QScreen>

/// Covers the screen with a picture in which no two pixels are alike.
class KnownPicture : public QWidget
{
public:
    KnownPicture()
    {
        setWindowFlags(Qt::BypassWindowManagerHint | Qt::FramelessWindowHint);
        setGeometry(QGuiApplication::primaryScreen()->geometry());
        m_image = QImage(size(), QImage::Format_RGB32);
        for (int y = 0; y < height(); ++y) {
            for (int x = 0; x < width(); ++x)
                m_image.setPixelColor(x, y, colorAt({x, y}));
        }
        show();
        static_cast<void>(QTest::qWaitForWindowExposed(this)); // the tests see it if it never is
    }

    /// The picture's colour at a position on the screen, in pixels as the toolkit counts them.
    static QColor colorAt(const QPoint &pos)
    {
        return {pos.x() % 256, pos.y() % 256, pos.x() / 256 * 40 + pos.y() / 256};
    }

    void invert()
    {
        m_image.invertPixels();
        repaint();
    }

protected:
    void paintEvent(QPaintEvent *) override { QPainter(this).drawImage(0, 0, m_image); }

private:
    QImage m_image;
};

#endif
