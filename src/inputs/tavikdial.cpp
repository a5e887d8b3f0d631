#include "inputs/tavikdial.h"

#include <QWheelEvent>

TavikDial::TavikDial(QWidget *parent)
    : QDial(parent)
{
}

void TavikDial::wheelEvent(QWheelEvent *event)
{
    event->accept(); // it comes ignored, and would scroll what is around
}
