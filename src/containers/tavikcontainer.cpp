#include "containers/tavikcontainer.h"

#include "foundation/sheet_p.h"

#include <QVBoxLayout>

TavikContainer::TavikContainer(Direction direction, const QString &bgColor, const QString &borderWidth,
                               const QString &borderColor, const QString &padding, const QString &margin,
                               QWidget *parent)
    : RemSized(parent)
{
    if (direction == Vertical)
        m_layout = new QVBoxLayout;
    else
        m_layout = new QHBoxLayout;
    setAlignment(Qt::AlignCenter);
    setLayout(m_layout);
    setStyleSheet(Sheet::join({
        {"TavikContainer{background-color: ", bgColor},
        {";border: ", borderWidth},
        {"px solid ", borderColor},
        {";padding: ", padding},
        {"px;margin: ", margin},
        {"px;}"},
    }));
}

TavikContainer::TavikContainer(Direction direction, QWidget *parent)
    : TavikContainer(direction, QStringLiteral("#00000000"), QStringLiteral("0"),
                     QStringLiteral("#00000000"), QStringLiteral("0"), QStringLiteral("0"), parent)
{
}

TavikContainer::TavikContainer(QWidget *parent)
    : TavikContainer(Vertical, parent)
{
}

void TavikContainer::setSpacing(double rem)
{
    m_layout->setSpacing(LenConverter::remToPx(rem));
}

void TavikContainer::addWidget(QWidget *widget)
{
    m_layout->addWidget(widget);
}

void TavikContainer::removeWidget(QWidget *widget)
{
    m_layout->removeWidget(widget);
}

void TavikContainer::addLayout(QLayout *layout)
{
    m_layout->addLayout(layout);
}

void TavikContainer::addSpacerItem(QSpacerItem *item)
{
    if (item) // the toolkit would crash, while it only warns of a null widget or layout
        m_layout->addSpacerItem(item);
}

void TavikContainer::addSpacing(int px)
{
    m_layout->addSpacing(px);
}

void TavikContainer::addStretch()
{
    m_layout->addStretch(1);
}

void TavikContainer::setContentMargin(int px)
{
    m_layout->setContentsMargins(px, px, px, px);
}

void TavikContainer::removeMargins()
{
    setContentMargin(0);
}

void TavikContainer::setAlignment(Qt::Alignment alignment)
{
    static_cast<QLayoutItem *>(m_layout)->setAlignment(alignment);
}

void TavikContainer::setAlignment(QLayout *layout, Qt::Alignment alignment)
{
    m_layout->setAlignment(layout, alignment);
}

void TavikContainer::paintEvent(QPaintEvent *)
{
    Sheet::paintBackground(this);
}
