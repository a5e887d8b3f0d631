#ifndef TAVIK_SQUAREKEYS_P_H
#define TAVIK_SQUAREKEYS_P_H

#include "access/controlkeys_p.h"

class QPoint;
class TavikColorPicker;

/// Moves the circle of the saturation/value square.
class SquareKeys : public ControlKeys
{
    Q_OBJECT

public:
    explicit SquareKeys(TavikColorPicker *square);

protected:
    bool press(const QKeyEvent &key) override;

private:
    TavikColorPicker *square() const;
    bool moveBy(int right, int down);
    bool moveByPercent(int right, int down);
    bool jump(bool inValue, bool toMost);
    bool pick(const QPoint &point);
};

#endif
