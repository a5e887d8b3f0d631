#include "color/tavikcolorwell.h"

#include "color/swatch_p.h"
#include "color/whitebutton_p.h"
#include "foundation/lenconverter.h"

#include <QIcon>
#include <QMouseEvent>

namespace {

constexpr QSize cellSize(16, 16); // pixels, as the spacing
constexpr int cellSpacing = 7;

} // namespace

TavikColorWell::TavikColorWell(const int &width, const int &height, QWidget *parent)
    : QWidget(parent)
{
    setFixedSize(width, height);
    initColors();
    initRects();
    buildAddButton();
    setAccessibleName(tr("Palette"));
}

TavikColorWell::TavikColorWell(QWidget *parent)
    : TavikColorWell(LenConverter::iniRemToPx(186), LenConverter::iniRemToPx(43), parent)
{
}

void TavikColorWell::initColors()
{
    // clang-format off
    static constexpr QRgb start[] = {
        0xb60e2e, 0xf3980f, 0xf7c016, 0x774c40, 0x59da4a, 0x357540, 0xbd18e7, 0x9c14ca,
        0x3981f2, 0x79c1c3, 0xbad576, 0x030303, 0x3f4244, 0x919093, 0xffffff,
    };
    // clang-format on
    for (const QRgb rgb : start)
        m_colors.append(QColor(rgb));
}

void TavikColorWell::initRects()
{
    m_rects.clear();
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const QPoint corner((cellSize.width() + cellSpacing) * column + 1,
                                (cellSize.height() + cellSpacing) * row + 1);
            m_rects.append(QRect(corner, cellSize));
        }
    }
}

void TavikColorWell::addColor(const QColor &color)
{
    if (m_colors.size() == colorCount)
        m_colors.removeLast();
    m_colors.prepend(color);
    update();
}

void TavikColorWell::mousePressEvent(QMouseEvent *event)
{
    QWidget::mousePressEvent(event);
    for (int cell = 0; cell < colorCount; ++cell) {
        if (m_rects.at(cell).contains(event->pos())) {
            select(cell);
            return;
        }
    }
}

void TavikColorWell::select(int cell)
{
    const QColor color = m_colors.at(cell); // a receiver may change the palette
    Q_EMIT colorSelected(color);
}

void TavikColorWell::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(QPen(QColor(0xd3d3d3), 1.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QBrush texture = Swatch::texture();
    for (int i = 0; i < colorCount; ++i)
        Swatch::paint(painter, m_rects.at(i), texture, m_colors.at(i));
}

void TavikColorWell::buildAddButton()
{
    const QIcon plus(QStringLiteral(":/Color/images/plus.svg"));
    m_addButton = new TavikButton(plus, QSizeF(-1, -1), TavikButton::Outline, this);
    m_addButton->setAccessibleName(tr("Add the current color"));
    m_addButton->setFixedSize(cellSize);
    m_addButton->setGeometry(m_rects.last());
    m_addButton->setBorderRadius(QStringLiteral("0"));
    WhiteButton::style(m_addButton);
    connect(m_addButton, &QAbstractButton::clicked, this, &TavikColorWell::addColorRequested);
}
