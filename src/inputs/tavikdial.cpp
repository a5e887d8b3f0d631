#include "inputs/tavikdial.h"

TavikDial::TavikDial(QWidget *parent)
    : WheelBlocked(parent)
{
}
