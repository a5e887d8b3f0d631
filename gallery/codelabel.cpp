#include "codelabel.h"

#include "look.h"

CodeLabel::CodeLabel(const QString &text, QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setText(text);
    setFont(Look::codeFont());
    setTextInteractionFlags(Qt::TextSelectableByMouse);
}
