#include "color/screenshot_p.h"

#include "color/paintmouserect_p.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QScreen>

Screenshot::Screenshot(QWidget *parent)
    : QWidget(parent)
{
    setCursor(QCursor(Qt::ArrowCursor));
    grabDesktop();
    createPaintMouseRect();
    // A window gets its full size only later, or never without a window manager; the frame is placed now.
    setGeometry(QGuiApplication::primaryScreen()->geometry());
    // A modal dialog keeps input from all windows but its own: nobody could leave the sampler.
    if (QApplication::activeModalWidget())
        setWindowModality(Qt::ApplicationModal);
    showFullScreen();
    setAttribute(Qt::WA_MouseTracking, true);
    // An application whose own windows are hidden while it samples goes on when this one closes.
    setAttribute(Qt::WA_QuitOnClose, false);
    const QPoint start = pointer();
    Q_EMIT cursorPosChange(start.x(), start.y()); // to the frame; clazy:exclude=incorrect-emit
    show();
}

QPoint Screenshot::pointer()
{
    const QPoint pos = QCursor::pos();
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen->virtualGeometry().contains(pos) ? pos : screen->geometry().center();
}

void Screenshot::moveTo(const QPoint &pos)
{
    Q_EMIT cursorPosChange(pos.x(), pos.y());
    m_paintMouseRect->repaint();
}

void Screenshot::pick()
{
    if (emitColor())
        close();
}

void Screenshot::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    if (!emitColor())
        return;
    m_paintMouseRect->setAttribute(Qt::WA_MouseTracking, false);
    close();
}

void Screenshot::mouseMoveEvent(QMouseEvent *event)
{
    Q_EMIT cursorPosChange(event->pos().x(), event->pos().y());
    QWidget::mouseMoveEvent(event);
}

void Screenshot::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        m_paintMouseRect->setAttribute(Qt::WA_MouseTracking, false);
        close();
        break;
    case Qt::Key_Alt:
        pick();
        break;
    default:
        event->ignore();
    }
}

void Screenshot::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.drawPixmap(QRectF(QPointF(), m_desktopRect.size()), *m_backgroundPixmap, QRectF());
}

/// Takes the picture of the whole virtual desktop, over all screens.
void Screenshot::grabDesktop()
{
    m_desktopRect = QGuiApplication::primaryScreen()->virtualGeometry();
    m_grabbedPixmap = std::make_shared<QPixmap>(QGuiApplication::primaryScreen()->grabWindow(
        0, m_desktopRect.x(), m_desktopRect.y(), m_desktopRect.width(), m_desktopRect.height()));
    m_backgroundPixmap = std::make_shared<QPixmap>(*m_grabbedPixmap);
}

void Screenshot::createPaintMouseRect()
{
    m_paintMouseRect = std::make_shared<PaintMouseRect>(m_grabbedPixmap, this);
    connect(this, SIGNAL(cursorPosChange(int,int)), m_paintMouseRect.get(), SLOT(onPostionChange(int,int)));
    m_paintMouseRect->show();
    m_paintMouseRect->raise();
}

bool Screenshot::emitColor()
{
    const QPointer<Screenshot> self = this;
    const QColor color = m_paintMouseRect->m_color;
    if (color.isValid())
        Q_EMIT screenColor(color);
    return self;
}
