#include "window.h"

#include "frame.h"
#include "look.h"
#include "remchoice.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStyle>

#include <Tavik/TavikKeyboardAccess>
#include <Tavik/TavikSelfCheck>

Window::Window(const QString &page, QWidget *parent)
    : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    // A scroll area is a stop for the tabulator key; this one seldom has anything to scroll.
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWindowTitle(tr("Tavik Gallery"));
    showFrame(page);
    takeGoodSize();
    m_frame->setFocus();
}

void Window::showFrame(const QString &page)
{
    m_frame = new Frame(page);
    m_frame->showProblems(TavikSelfCheck::problems());
    TavikKeyboardAccess::install(m_frame);
    setWidget(m_frame);
    // Queued, as the button that was clicked goes with the frame.
    connect(m_frame->remChoice(), &RemChoice::remChosen, this, &Window::changeRem, Qt::QueuedConnection);
}

void Window::takeGoodSize()
{
    if (isMaximized() || isFullScreen())
        return;
    const QSize titleBar(0, style()->pixelMetric(QStyle::PM_TitleBarHeight));
    resize(Frame::goodSize().boundedTo(screen()->availableSize() - titleBar));
}

void Window::changeRem(int rem)
{
    Look::setRem(rem);
    showFrame(m_frame->page());
    takeGoodSize();
    m_frame->remChoice()->setFocus();
    ensureWidgetVisible(m_frame->remChoice());
}
