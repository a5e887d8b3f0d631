#include "panel.h"

#include "look.h"

#include <QAbstractButton>
#include <QLabel>

#include <Tavik/LenConverter>
#include <Tavik/TavikContainer>
#include <Tavik/TavikLabel>

namespace {

constexpr double inset = 1.2; // rem

// What the panel's borders and paddings take of its width, and of its height, in pixels.
constexpr int frame = 8;

/// Lets a screen reader tell what has no text of its own by the name of its row.
void nameForReaders(QWidget *widget, const QString &name)
{
    QWidget *control = widget->focusProxy() ? widget->focusProxy() : widget;
    const auto *button = qobject_cast<QAbstractButton *>(control);
    const bool hasText = qobject_cast<QLabel *>(control) || (button && !button->text().isEmpty());
    if (control->accessibleName().isEmpty() && !hasText)
        control->setAccessibleName(name);
}

} // namespace

Panel::Panel(const QString &title, Poster *poster, QWidget *parent)
    : TavikExpandable(title, 0.0, false, parent)
    , m_poster(poster)
    , m_rows(new TavikContainer)
{
    setRemWidth(RemWidth);
    m_rows->setContentMargin(LenConverter::remToPx(inset));
    m_rows->setSpacing(Look::Gap);
    m_rows->setFixedWidth(LenConverter::remToPx(RemWidth) - frame);
    addWidget(m_rows);
}

int Panel::rowsWidth()
{
    return LenConverter::remToPx(RemWidth) - frame - 2 * LenConverter::remToPx(inset);
}

void Panel::editColor(const QString &what, const Poster::Edit &edit)
{
    if (!m_poster->edit(what, edit))
        follow(m_poster->settings());
}

void Panel::addRow(const QString &name, std::initializer_list<QWidget *> widgets)
{
    auto *row = new TavikContainer(Horizontal);
    row->removeMargins();
    row->setSpacing(Look::Gap);
    TavikLabel *label = Look::label(name);
    label->setFixedWidth(rowsWidth() - LenConverter::remToPx(RemRowWidth) -
                         LenConverter::remToPx(Look::Gap));
    row->addWidget(label);
    for (QWidget *widget : widgets) {
        row->addWidget(widget);
        nameForReaders(widget, name);
    }
    row->addStretch();
    m_rows->addWidget(row);
}

void Panel::addWide(QWidget *widget)
{
    m_rows->addWidget(widget);
}

void Panel::finish(bool isOpen)
{
    updateExpandedHeight(LenConverter::pxToRem(m_rows->sizeHint().height() + frame));
    // Or Tab would lead through the rows of a closed panel, where nobody sees them.
    connect(this, &Panel::animationStarted, m_rows, &QWidget::show);
    connect(this, &Panel::animationFinished, m_rows, [this] { m_rows->setVisible(remExpandHeight() > 0); });
    if (isOpen)
        expand();
    connect(m_poster, &Poster::changed, this, [this] { follow(m_poster->settings()); });
    follow(m_poster->settings());
}
