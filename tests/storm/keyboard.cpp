#include "actions.h"
#include "stage.h"
#include "wild.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QTest>
#include <QWindow>

namespace {

constexpr Qt::Key keys[] = {
    Qt::Key_Tab,  Qt::Key_Backtab, Qt::Key_Return,    Qt::Key_Enter,  Qt::Key_Escape, Qt::Key_Space,
    Qt::Key_Left, Qt::Key_Right,   Qt::Key_Up,        Qt::Key_Down,   Qt::Key_PageUp, Qt::Key_PageDown,
    Qt::Key_Home, Qt::Key_End,     Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_F4,     Qt::Key_Alt,
    Qt::Key_A,    Qt::Key_F,       Qt::Key_G,         Qt::Key_V,      Qt::Key_X,      Qt::Key_Z,
    Qt::Key_0,    Qt::Key_3,       Qt::Key_9,         Qt::Key_Minus,  Qt::Key_Comma,  Qt::Key_Period,
};

constexpr Qt::KeyboardModifiers modifiers[] = {Qt::NoModifier, Qt::NoModifier,    Qt::NoModifier,
                                               Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier};

/// What the toolkit would give the key to, or the control itself.
QWidget *receiverIn(QWidget *control, int child)
{
    const QList<QWidget *> children = control->findChildren<QWidget *>();
    return children.isEmpty() || child < 0 ? control : children.at(child % children.size());
}

struct Key
{
    explicit Key(Random &random)
        : key(random.pick(keys))
        , modifier(random.pick(modifiers))
    {
        if (key >= Qt::Key_Space && key <= Qt::Key_AsciiTilde)
            typed = QString(QChar(key)).toLower();
    }

    Qt::Key key;
    Qt::KeyboardModifiers modifier;
    QString typed;
};

Deed key(Random &random)
{
    const int slot = random.below(Stage::slotCount());
    const int child = random.between(-1, 30);
    const Key key(random);
    return deedTo(slot, [=](Stage &, QWidget *control) {
        const QPointer<QWidget> receiver = receiverIn(control, child);
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            if (!receiver)
                return;
            QKeyEvent event(type, key.key, key.modifier, key.typed);
            QSpontaneKeyEvent::setSpontaneous(&event);
            qApp->notify(receiver, &event);
        }
    });
}

/// By way of the platform: to what has the focus, or to the open popup.
Deed platformKey(Random &random)
{
    const Key key(random);
    return {{}, [=](Stage &stage) {
                for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
                    qt_handleKeyEvent(stage.window()->windowHandle(), type, key.key, key.modifier,
                                      key.typed);
                }
            }};
}

Deed commitText(Random &random)
{
    const int slot = random.below(Stage::slotCount());
    const int child = random.between(-1, 30);
    const QString text = Wild::text(random);
    return deedTo(slot, [=](Stage &, QWidget *control) {
        QInputMethodEvent event(text.left(2), {});
        event.setCommitString(text, -1, 1);
        QApplication::sendEvent(receiverIn(control, child), &event);
    });
}

Deed paste(Random &random)
{
    const QString text = Wild::text(random);
    return {{}, [=](Stage &stage) {
                QGuiApplication::clipboard()->setText(text);
                QWidget *focused = QApplication::focusWidget();
                QWidget *receiver = focused ? focused : stage.window();
                QKeyEvent event(QEvent::KeyPress, Qt::Key_V, Qt::ControlModifier);
                QApplication::sendEvent(receiver, &event);
            }};
}

Deed focus(Random &random)
{
    const int slot = random.below(Stage::slotCount());
    const int child = random.between(-1, 30);
    const bool takes = !random.oneIn(4);
    return deedTo(slot, [=](Stage &, QWidget *control) {
        QWidget *receiver = receiverIn(control, child);
        if (takes)
            receiver->setFocus(Qt::TabFocusReason);
        else
            receiver->clearFocus();
    });
}

} // namespace

std::vector<Action> Actions::keyboard()
{
    return {
        {"key", 25, key},
        {"platformKey", 10, platformKey},
        {"commitText", 6, commitText},
        {"paste", 4, paste},
        {"focus", 10, focus},
    };
}
