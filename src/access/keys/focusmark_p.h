#ifndef TAVIK_FOCUSMARK_P_H
#define TAVIK_FOCUSMARK_P_H

#include <QFocusFrame>
#include <QPointer>

/// The frame around what has the focus, wherever there is keyboard access. It shows from the first key on,
/// and until the mouse is used. It goes with the application, or with the library if that is unloaded before.
class FocusMark : public QObject
{
    Q_OBJECT

public:
    ~FocusMark() override;

    /// The one mark of the application, made where there is none yet.
    static FocusMark *install();

    /// Tells the mark what is used: keys, or the mouse.
    static void setKeysInUse(bool inUse);

private:
    explicit FocusMark(QObject *parent);

    void update();
    void putAround(QWidget *widget);

    bool m_keysInUse = false;
    QStyle *m_style;
    QPointer<QFocusFrame> m_frame; // a child of the window or scroll area that it was last shown in
};

#endif
