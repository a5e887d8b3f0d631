#include "codetext.h"

#include "codelabel.h"
#include "look.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QTimer>

#include <Tavik/TavikButton>

CodeText::CodeText(const QString &code, QWidget *parent)
    : Surface(Look::Tint, Look::Line, parent)
    , m_code(code)
    , m_copyButton(new TavikButton(tr("Copy"), TavikButton::Link))
{
    const int padding = LenConverter::remToPx(1);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(padding, padding, padding / 2, padding);
    layout->setSpacing(padding);
    layout->addWidget(new CodeLabel(code), 1, Qt::AlignTop);
    layout->addWidget(m_copyButton, 0, Qt::AlignTop);

    // Wide enough for the answer too, so that nothing moves when it appears.
    m_copyButton->setRemSize(4.5, 1.5);
    m_copyButton->setFontRemSz(1);
    connect(m_copyButton, &QPushButton::clicked, this, &CodeText::copy);
}

void CodeText::copy()
{
    QGuiApplication::clipboard()->setText(m_code);
    m_copyButton->setText(tr("Copied"));
    QTimer::singleShot(1500, m_copyButton, [this] { m_copyButton->setText(tr("Copy")); });
}
