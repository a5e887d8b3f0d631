#include "frame.h"

#include "look.h"
#include "navigation.h"
#include "page.h"
#include "pagetable.h"
#include "remchoice.h"

#include <QGridLayout>
#include <QScrollArea>

#include <Tavik/LenConverter>
#include <Tavik/TavikLabel>

namespace {

// Width of the line between two panes, in pixels.
constexpr int Seam = 1;

} // namespace

Frame::Frame(const QString &page, QWidget *parent)
    : QWidget(parent)
    , m_layout(new QGridLayout(this))
    , m_title(Look::heading({}, 1.667))
    , m_remChoice(new RemChoice)
    , m_header(buildHeader())
    , m_scrollArea(new QScrollArea)
{
    // The lines between the panes are the ground that shows through.
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Mid);
    m_scrollArea->setFrameShape(QFrame::NoFrame);
    m_scrollArea->setWidgetResizable(true);
    m_scrollArea->setBackgroundRole(QPalette::Window);

    auto *navigation = new Navigation(page);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(Seam);
    m_layout->addWidget(navigation, 0, 0, 2, 1);
    m_layout->addWidget(m_header, 0, 1);
    m_layout->addWidget(m_scrollArea, 1, 1);
    m_layout->setColumnStretch(1, 1);
    m_layout->setRowStretch(1, 1);

    setFocusProxy(navigation);
    connect(navigation, &Navigation::pageChosen, this, &Frame::showPage);
    showPage(page);
}

void Frame::showPage(const QString &name)
{
    const PageEntry *entry = findPage(name);
    m_page = name;
    m_title->setText(entry->title());
    m_scrollArea->setWidget(entry->make());
}

void Frame::showProblems(const QStringList &problems)
{
    if (problems.isEmpty())
        return;
    auto *strip = new QWidget;
    strip->setAutoFillBackground(true);
    QPalette palette = strip->palette();
    palette.setColor(QPalette::Window, Look::Warning);
    strip->setPalette(palette);
    auto *layout = new QVBoxLayout(strip);
    const int gap = LenConverter::remToPx(Look::Gap);
    layout->setContentsMargins(gap, gap / 2, gap, gap / 2);
    for (const QString &problem : problems)
        layout->addWidget(Look::paragraph(problem));
    m_layout->addWidget(strip, 2, 0, 1, 2);
}

int Frame::fullHeight() const
{
    const QWidget *page = m_scrollArea->widget();
    // Beside a bar the page is narrower and may be a line higher: a height that is enough only without the
    // bar would keep it.
    const int pageHeight = qMax(page->minimumSizeHint().height(), page->heightForWidth(page->width()));
    return m_header->height() + Seam + pageHeight;
}

QSize Frame::goodSize()
{
    return {LenConverter::remToPx(116), LenConverter::remToPx(76)};
}

QWidget *Frame::buildHeader()
{
    auto *header = new QWidget;
    header->setAutoFillBackground(true);
    header->setBackgroundRole(QPalette::Base);
    const int gap = LenConverter::remToPx(Look::Gap);
    auto *layout = new QHBoxLayout(header);
    layout->setContentsMargins(gap, gap / 2, gap, gap / 2);
    layout->setSpacing(gap);
    layout->addWidget(m_title);
    layout->addStretch();
    layout->addWidget(m_remChoice);
    return header;
}
