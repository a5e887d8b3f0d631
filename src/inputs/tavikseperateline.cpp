#include "inputs/tavikseperateline.h"

#include "foundation/lenconverter.h"

TavikSeperateLine::TavikSeperateLine(int pxWidth, QWidget *parent)
    : TavikSeperateLine(parent)
{
    setFixedWidth(pxWidth);
}

TavikSeperateLine::TavikSeperateLine(double remWidth, QWidget *parent)
    : TavikSeperateLine(LenConverter::remToPx(remWidth), parent)
{
}

TavikSeperateLine::TavikSeperateLine(QWidget *parent)
    : QLabel(parent)
{
    setMinimumWidth(1); // or the picture's own width would be the least
    setFixedHeight(1);
    setPixmap(QPixmap(QStringLiteral(":/SeperateLine/images/seperate_line.svg")));
    setScaledContents(true);
}
