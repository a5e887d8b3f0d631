#include "color/tavikcolorbutton.h"

#include "color/swatch_p.h"
#include "foundation/sheet_p.h"

TavikColorButton::TavikColorButton(const QColor &color, QWidget *parent)
    : RemSized(parent)
{
    updateStyleSheet();
    setCurrentColor(color);
    connect(this, &QAbstractButton::clicked, this, &TavikColorButton::onColorButtonClicked);
}

TavikColorButton::TavikColorButton(QWidget *parent)
    : TavikColorButton(Qt::white, parent)
{
}

QColor TavikColorButton::currentColor() const
{
    return m_currentColor;
}

void TavikColorButton::setCurrentColor(const QColor &color)
{
    m_currentColor = color;
    update();
    Q_EMIT colorChanged(m_currentColor);
}

void TavikColorButton::updateStyleSheet()
{
    const Sheet::Table sheet = {
        {"TavikColorButton {margin: 0;padding: 0;background-color: ", "#ffffff"},
        {";border: ", "1"},
        {"px solid ", "#d3d3d3"},
        {";border-radius: ", ""}, // and so none: the corners stay square
        {"px;}TavikColorButton:hover{background-color: ", "#f7f7f7"},
        {";}TavikColorButton:pressed{background-color: ", "#e8e8e8"},
        {";}TavikColorButton:disabled {background-color: ", "#e0e0e0"},
        {";}"},
    };
    Sheet::set(this, sheet);
}

void TavikColorButton::paintEvent(QPaintEvent *event)
{
    QPushButton::paintEvent(event);
    const QRect swatch = swatchRect();
    if (swatch.isEmpty())
        return; // the toolkit would draw it inside out
    QPainter painter(this);
    painter.setPen(QPen(QColor(0xd3d3d3), 1));
    Swatch::paint(painter, swatch, Swatch::texture(), m_currentColor);
}

void TavikColorButton::onColorButtonClicked()
{
    Q_EMIT showPopup(mapToGlobal(rect().center()), m_currentColor);
}

QRect TavikColorButton::swatchRect() const
{
    return {QPoint(m_paddingH, m_paddingV), QPoint(width() - 2 - m_paddingH, height() - 2 - m_paddingV)};
}
