#include "report.h"

Report::Report(double remWidth, QWidget *parent)
    : TavikLabel(QStringLiteral("\u2013"), Assist, parent)
{
    setTextFormat(Qt::PlainText);
    setIndent(0);
    setRemWidth(remWidth);
}

void Report::tell(const QString &signal, const QVariant &value)
{
    const QString text = value.isValid() ? signal + QStringLiteral(": ") + value.toString() : signal;
    setText(fontMetrics().elidedText(text, Qt::ElideRight, width()));
    setToolTip(text);
}
