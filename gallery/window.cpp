#include "window.h"

#include "frame.h"
#include "remchoice.h"

#include <QGuiApplication>
#include <QScreen>

#include <Tavik/LenConverter>

Window::Window(const QString &page, QWidget *parent)
    : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setWindowTitle(tr("Tavik Gallery"));
    resize(Frame::goodSize().boundedTo(screen()->availableSize()));
    showFrame(page);
}

void Window::showFrame(const QString &page)
{
    m_frame = new Frame(page);
    setWidget(m_frame);
    // Queued, as the button that was clicked goes with the frame.
    connect(m_frame->remChoice(), &RemChoice::remChosen, this, &Window::changeRem, Qt::QueuedConnection);
}

void Window::changeRem(int rem)
{
    LenConverter::m_rem = rem;
    showFrame(m_frame->page());
    m_frame->remChoice()->setFocus();
}
