#include "panel.h"

#include "look.h"

#include <Tavik/LenConverter>
#include <Tavik/TavikContainer>
#include <Tavik/TavikLabel>

namespace {

constexpr double inset = 1.2; // rem

} // namespace

Panel::Panel(const QString &title, Poster *poster, QWidget *parent)
    : TavikExpandable(title, 0.0, false, parent)
    , m_poster(poster)
    , m_rows(new TavikContainer)
{
    setRemWidth(RemWidth);
    m_rows->setContentMargin(LenConverter::remToPx(inset));
    m_rows->setSpacing(Look::Gap);
    m_rows->setFixedWidth(LenConverter::remToPx(RemWidth) - 8); // what borders and paddings leave
    addWidget(m_rows);
}

void Panel::addRow(const QString &name, std::initializer_list<QWidget *> widgets)
{
    auto *row = new TavikContainer(Horizontal);
    row->removeMargins();
    row->setSpacing(Look::Gap);
    TavikLabel *label = Look::label(name);
    label->setRemWidth(RemWidth - RemRowWidth - 2 * inset - Look::Gap - 0.6);
    row->addWidget(label);
    for (QWidget *widget : widgets)
        row->addWidget(widget);
    row->addStretch();
    m_rows->addWidget(row);
}

void Panel::addWide(QWidget *widget)
{
    m_rows->addWidget(widget);
}

void Panel::finish(bool isOpen)
{
    updateExpandedHeight(LenConverter::pxToRem(m_rows->sizeHint().height() + 8));
    if (isOpen)
        expand();
    connect(m_poster, &Poster::changed, this, [this] { follow(m_poster->settings()); });
    follow(m_poster->settings());
}
