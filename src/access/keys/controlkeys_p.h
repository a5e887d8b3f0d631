#ifndef TAVIK_CONTROLKEYS_P_H
#define TAVIK_CONTROLKEYS_P_H

#include <QObject>

class QFocusEvent;
class QKeyEvent;
class QWidget;

/// Gives a control the keys that it doesn't have of its own, as a child of it that sees its events first.
class ControlKeys : public QObject
{
    Q_OBJECT

public:
    explicit ControlKeys(QWidget *control);

    /// What the focus mark stands around when the control has the focus.
    virtual QWidget *marked() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    QWidget *control() const;

    /// A key was pressed while the control has the focus. True if it has done something.
    virtual bool press(const QKeyEvent &) { return false; }

    virtual void enter(const QFocusEvent &) {}
};

#endif
