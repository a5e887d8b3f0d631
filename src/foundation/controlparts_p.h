#ifndef TAVIK_CONTROLPARTS_P_H
#define TAVIK_CONTROLPARTS_P_H

#include <QRect>
#include <QString>

#include <functional>

class QObject;
class QWidget;

/// What a control offers to keyboard and screen reader: its parts, to press or to drag, by number, 0 to count() - 1.
/// What is done to a part has the effects and signals that the mouse has.
///
/// A class for it stands beside each such control.
class ControlParts
{
public:
    virtual ~ControlParts() = default;

    virtual int count() const = 0;

    /// Above 0 for a grid, whose parts stand in rows of so many.
    virtual int columns() const { return 0; }

    virtual QRect rect(int part) const = 0;
    virtual QString name(int part) const = 0;

    /// The widget that is the part; null for a part that is only painted.
    virtual QWidget *widget(int) const { return nullptr; }

    virtual void press(int) {}

    /// Whether it is a handle with a value from 0 to 100. All others are pressed.
    virtual bool hasValue(int) const { return false; }
    virtual int value(int) const { return 0; }

    /// Goes as near to the value as the handle can.
    virtual void setValue(int, int) {}

    /// Calls `changed` with the number of a part that may have changed, as long as `context` lives.
    virtual void follow(QObject *context, const std::function<void(int)> &changed) const
    {
        Q_UNUSED(context)
        Q_UNUSED(changed)
    }
};

#endif
