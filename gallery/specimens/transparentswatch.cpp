#include "transparentswatch.h"

#include <QPainter>

#include <Tavik/IconTool>
#include <Tavik/LenConverter>

TransparentSwatch::TransparentSwatch(
    const QColor &color, QWidget *parent)
    : QWidget(parent)
    , m_color(color)
{
    setFixedSize(LenConverter::iniRemToPxSz(96, 48));
}

void TransparentSwatch::paintEvent(QPaintEvent *)
{
    //! [paint]
    QPainter painter(this);
    painter.fillRect(rect(), QBrush(IconTool::alphaTexture()));
    painter.fillRect(rect(), m_color);
    //! [paint]
}
