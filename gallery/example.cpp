#include "example.h"

#include "codetext.h"
#include "look.h"

#include <QVBoxLayout>

#include <Tavik/LenConverter>
#include <Tavik/TavikLabel>

Example::Example(const QString &name, const QString &description, QWidget *specimen, const QString &code,
                 QWidget *parent)
    : Surface(Qt::white, Look::Line, parent)
{
    const int padding = LenConverter::remToPx(Look::Gap);
    const int gap = LenConverter::remToPx(Look::SmallGap);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(padding, padding - gap / 2, padding, padding);
    layout->setSpacing(0);
    layout->addWidget(Look::heading(name, 1.333));
    layout->addSpacing(gap / 3);
    layout->addWidget(Look::paragraph(description));
    layout->addSpacing(gap * 3 / 2);
    // Cards side by side are of one height: the specimen takes what is left over.
    layout->addWidget(specimen, 1);
    if (code.isEmpty())
        return;
    layout->addSpacing(gap * 3 / 2);
    layout->addWidget(new CodeText(code));
}
