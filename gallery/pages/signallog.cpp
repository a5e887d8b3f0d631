#include "signallog.h"

#include "codelabel.h"
#include "look.h"

#include <QHBoxLayout>

#include <Tavik/LenConverter>
#include <Tavik/TavikButton>

namespace {

constexpr int maxLines = 6;

} // namespace

SignalLog::SignalLog(QWidget *parent)
    : QWidget(parent)
    , m_text(new CodeLabel(QString()))
{
    m_text->setFixedHeight(m_text->fontMetrics().lineSpacing() * (maxLines + 1));
    m_text->setFixedWidth(LenConverter::remToPx(40));
    m_text->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto *clear = new TavikButton(tr("Clear"), TavikButton::Link);
    clear->setRemSize(4.5, 1.5);
    connect(clear, &QPushButton::clicked, this, [this] { show({}); });

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_text);
    layout->addStretch();
    layout->addWidget(clear, 0, Qt::AlignTop);
    show({tr("Click a colour, or press a square or a handle of the bar.")});
}

void SignalLog::tell(const QString &sender, const QString &signal, const QString &value)
{
    show(QStringList(QStringLiteral("%1: %2 %3").arg(sender, signal, value).trimmed()) + m_lines);
}

void SignalLog::show(const QStringList &lines)
{
    m_lines = lines.mid(0, maxLines);
    m_text->setText(m_lines.join(QLatin1Char('\n')));
}
