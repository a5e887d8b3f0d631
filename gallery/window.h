#ifndef GALLERY_WINDOW_H
#define GALLERY_WINDOW_H

#include <QScrollArea>

class Frame;

/// The gallery's window: a frame, made anew whenever the rem changes.
///
/// It scrolls, so that a rem meant for a far larger screen leaves nothing out of reach.
class Window : public QScrollArea
{
    Q_OBJECT

public:
    explicit Window(const QString &page, QWidget *parent = nullptr);

private:
    void showFrame(const QString &page);
    void takeGoodSize();
    void changeRem(int rem);

    Frame *m_frame = nullptr;
};

#endif
