#include "page.h"

#include "example.h"
#include "look.h"

#include <QGridLayout>
#include <QVBoxLayout>

#include <Tavik/LenConverter>
#include <Tavik/TavikLabel>

Page::Page(const QString &introduction)
    : m_examples(new QGridLayout)
{
    const int gap = LenConverter::remToPx(Look::Gap);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(gap, gap, gap, gap);
    layout->setSpacing(gap);
    layout->addWidget(Look::paragraph(introduction));
    layout->addLayout(m_examples);
    layout->addStretch(1);

    m_examples->setSpacing(gap);
    m_examples->setColumnStretch(0, 1);
    m_examples->setColumnStretch(1, 1);
}

void Page::addExample(Span span, const QString &name, const QString &description, QWidget *specimen,
                      const Snippet &code)
{
    if (m_column + span > Whole) {
        ++m_row;
        m_column = 0;
    }
    m_examples->addWidget(new Example(name, description, specimen, code.text()), m_row, m_column, 1, span);
    m_column += span;
}
