#ifndef TAVIK_SQUAREKEYS_P_H
#define TAVIK_SQUAREKEYS_P_H

#include "access/keys/controlkeys_p.h"

#include <memory>

class SquarePoint;
class TavikColorPicker;

/// Moves the circle of the saturation/value square.
class SquareKeys : public ControlKeys
{
    Q_OBJECT

public:
    SquareKeys(TavikColorPicker *square, std::unique_ptr<SquarePoint> point);
    ~SquareKeys() override;

protected:
    bool press(const QKeyEvent &key) override;

private:
    bool moveBy(int right, int down);
    bool moveByPercent(int right, int down);
    bool jump(bool inValue, bool toMost);
    bool moveTo(const QPoint &pos);

    std::unique_ptr<SquarePoint> m_point;
};

#endif
