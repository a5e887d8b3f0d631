#ifndef TAVIK_KEYBOARDFILTER_P_H
#define TAVIK_KEYBOARDFILTER_P_H

#include <QObject>

class QWidget;

/// Gives keys to each control of a tree of widgets, and to those that join it.
class KeyboardFilter : public QObject
{
    Q_OBJECT

public:
    /// Calls `giveKeys` for each widget that has none yet, which makes the ControlKeys of those that get some.
    KeyboardFilter(QWidget *root, void (*giveKeys)(QWidget *));

    /// Whether the widget is in the tree of a filter.
    static bool covers(const QWidget *widget);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void cover(QWidget *widget);

    void (*m_giveKeys)(QWidget *);
};

#endif
