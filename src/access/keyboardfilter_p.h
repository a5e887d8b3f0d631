#ifndef TAVIK_KEYBOARDFILTER_P_H
#define TAVIK_KEYBOARDFILTER_P_H

#include <QObject>

class QWidget;

/// Gives keys to each control of a tree of widgets, and to those that join it.
class KeyboardFilter : public QObject
{
    Q_OBJECT

public:
    explicit KeyboardFilter(QWidget *root);

    /// Whether the widget is in the tree of a filter.
    static bool covers(const QWidget *widget);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void cover(QWidget *widget);
};

#endif
