#include "messagebar.h"

#include "look.h"

#include <QIcon>

#include <Tavik/LenConverter>
#include <Tavik/TavikButton>
#include <Tavik/TavikLabel>

MessageBar::MessageBar(QWidget *parent)
    : TavikContainer(Horizontal, QStringLiteral("#ffffff"), QStringLiteral("1"), QStringLiteral("#d3d3d3"),
                     QStringLiteral("0"), QStringLiteral("0"), parent)
    , m_label(Look::label({}))
{
    setContentMargin(LenConverter::remToPx(0.5));
    m_label->setTextFormat(Qt::PlainText);
    m_label->setWordWrap(true);
    m_label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    auto *close = new TavikButton(QIcon(QStringLiteral(":/Button/images/delete_grey.svg")),
                                  QSizeF(1.2, 1.2), TavikButton::Link);
    close->setRemSize(2, 2);
    close->setAccessibleName(tr("Close the message"));
    addSpacing(LenConverter::remToPx(0.8));
    addWidget(m_label);
    addWidget(close);
    connect(close, &QPushButton::clicked, this, &QWidget::hide);
    hide();
}

void MessageBar::tell(const QString &text)
{
    display(text, QStringLiteral("#087a58"));
}

void MessageBar::complain(const QString &text)
{
    display(text, QStringLiteral("#b3261e"));
}

QString MessageBar::text() const
{
    return isHidden() ? QString() : m_label->text();
}

void MessageBar::display(const QString &text, const QString &color)
{
    m_label->setText(text);
    m_label->setColor(color);
    setVisible(!text.isEmpty());
}
