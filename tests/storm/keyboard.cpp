#include "actions.h"
#include "stage.h"
#include "wild.h"

#include <QApplication>
#include <QClipboard>
#include <QFocusFrame>
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
    }

    QString typed() const
    {
        const bool isSign = key >= Qt::Key_Space && key <= Qt::Key_AsciiTilde;
        return isSign ? QString(QChar(key)).toLower() : QString();
    }

    Qt::Key key;
    Qt::KeyboardModifiers modifier;
};

Deed key(Random &random)
{
    const int slot = random.below(Stage::slotCount());
    const int child = random.between(-1, 30);
    const Key key(random);
    const QString text = QStringLiteral("%1 child %2 key 0x%3 modifiers 0x%4")
                             .arg(QLatin1String(Stage::className(slot)))
                             .arg(child)
                             .arg(key.key, 0, 16)
                             .arg(int(key.modifier), 0, 16);
    return {text, [=](Stage &stage) {
                const QPointer<QWidget> receiver = receiverIn(stage.at(slot), child);
                for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
                    if (!receiver)
                        return;
                    QKeyEvent event(type, key.key, key.modifier, key.typed());
                    QSpontaneKeyEvent::setSpontaneous(&event);
                    qApp->notify(receiver, &event);
                }
            }};
}

/// By way of the platform: to what has the focus, or to the open popup.
Deed platformKey(Random &random)
{
    const Key key(random);
    const QString text =
        QStringLiteral("focus key 0x%1 modifiers 0x%2").arg(key.key, 0, 16).arg(int(key.modifier), 0, 16);
    return {text, [=](Stage &stage) {
                for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
                    qt_handleKeyEvent(stage.window()->windowHandle(), type, key.key, key.modifier,
                                      key.typed());
                }
            }};
}

Deed commitText(Random &random)
{
    const int slot = random.below(Stage::slotCount());
    const int child = random.between(-1, 30);
    const auto argument = Wild::draw<QString>(random);
    const QString text = QStringLiteral("%1 child %2 %3")
                             .arg(QLatin1String(Stage::className(slot)))
                             .arg(child)
                             .arg(argument.text);
    return {text, [=](Stage &stage) {
                QInputMethodEvent event(argument.value.left(2), {});
                event.setCommitString(argument.value, -1, 1);
                QApplication::sendEvent(receiverIn(stage.at(slot), child), &event);
            }};
}

Deed paste(Random &random)
{
    const auto argument = Wild::draw<QString>(random);
    return {argument.text, [=](Stage &stage) {
                QGuiApplication::clipboard()->setText(argument.value);
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
    const QString text = QStringLiteral("%1 child %2 %3")
                             .arg(QLatin1String(Stage::className(slot)))
                             .arg(child)
                             .arg(QLatin1String(takes ? "takes" : "loses"));
    return {
        text, [=](Stage &stage) {
            QWidget *receiver = receiverIn(stage.at(slot), child);
            if (qobject_cast<QFocusFrame *>(receiver))
                return; // it marks what has the focus, and goes in the middle of the change if it is that itself
            if (takes)
                receiver->setFocus(Qt::TabFocusReason);
            else
                receiver->clearFocus();
        }};
}

} // namespace

const std::vector<Action> &Actions::keyboard()
{
    static const std::vector<Action> actions = {
        {"key", 25, key},
        {"platformKey", 10, platformKey},
        {"commitText", 6, commitText},
        {"paste", 4, paste},
        {"focus", 10, focus},
    };
    return actions;
}
