#include "navigation.h"

#include "look.h"
#include "pagetable.h"

#include <QCoreApplication>
#include <QVBoxLayout>

#include <Tavik/TavikButton>
#include <Tavik/TavikLabel>

Navigation::Navigation(const QString &currentPage, QWidget *parent)
    : QWidget(parent)
{
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    const int margin = LenConverter::remToPx(Look::SmallGap);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(margin / 3);

    TavikLabel *wordMark = Look::heading(QStringLiteral("Tavik"), 2);
    wordMark->setColor(Look::Accent.name());
    wordMark->setIndent(margin - LenConverter::remToPx(0.333)); // a large letter stands further in
    wordMark->setRemHeight(4);
    layout->addWidget(wordMark);
    for (const PageEntry &page : pageTable())
        layout->addWidget(pageButton(page, page.name == currentPage));
    layout->addStretch();

    const QString versions = tr("Version %1").arg(QCoreApplication::applicationVersion());
    auto *version = new TavikLabel(versions, TavikLabel::Assist);
    version->setIndent(margin - LenConverter::remToPx(0.1)); // less the padding of its look
    layout->addWidget(version);
}

QWidget *Navigation::pageButton(const PageEntry &page, bool isCurrent)
{
    auto *button = new TavikButton(page.title(), TavikButton::Toggle);
    button->setRemSize(12, 2.667);
    button->setBorderWidth(QStringLiteral("0"));
    button->setBorderRadius(LenConverter::iniRemToStrPx(4));
    button->updateStyleSheet();
    const QString alignment = QStringLiteral("TavikButton{text-align: left;padding-left: %1px;}");
    button->setStyleSheet(button->styleSheet() + alignment.arg(LenConverter::remToPx(Look::SmallGap)));
    button->setAutoExclusive(true);
    button->setChecked(isCurrent);
    connect(button, &QPushButton::toggled, this, [this, name = page.name](bool isChecked) {
        if (isChecked)
            Q_EMIT pageChosen(name);
    });
    if (isCurrent)
        setFocusProxy(button);
    return button;
}
