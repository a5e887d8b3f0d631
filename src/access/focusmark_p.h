#ifndef TAVIK_FOCUSMARK_P_H
#define TAVIK_FOCUSMARK_P_H

#include <QFocusFrame>
#include <QPointer>

/// The frame around what has the focus, wherever there is keyboard access.
class FocusMark : public QObject
{
    Q_OBJECT

public:
    /// Makes the one mark of the application, unless there is one.
    static void install();

private:
    explicit FocusMark(QObject *parent);

    void follow(QWidget *focused);

    QPointer<QFocusFrame> m_frame; // a child of the window that it is in
};

#endif
