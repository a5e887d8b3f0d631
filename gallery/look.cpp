#include "look.h"

#include "common/sharpicons.h"

#include <QApplication>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QPalette>
#include <QStyleFactory>

#include <Tavik/LenConverter>
#include <Tavik/TavikLabel>
#include <Tavik/TypographyTool>

namespace {

QPalette lightPalette()
{
    QPalette palette(Look::Text, Qt::white, Qt::white, QColor(0x90, 0x90, 0x90), Look::Line, Look::Text,
                     Qt::white, Qt::white, Look::Ground);
    palette.setColor(QPalette::Highlight, Look::Accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, Qt::white);
    palette.setColor(QPalette::ToolTipText, Look::Text);
    return palette;
}

bool isInstalled(const QString &family)
{
    return QFontDatabase().families().contains(family);
}

} // namespace

void Look::apply(QApplication &app)
{
    drawIconsSharply();
    app.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    app.setPalette(lightPalette());
    QFont font = app.font();
    if (isInstalled(QStringLiteral("Inter")))
        font.setFamily(QStringLiteral("Inter"));
    app.setFont(font);
}

void Look::setRem(int rem)
{
    LenConverter::m_rem = rem;
    //! [font]
    QFont font = QApplication::font();
    font.setPixelSize(TypographyTool::defualtFontSz().toInt());
    QApplication::setFont(font);
    //! [font]
}

QFont Look::codeFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (isInstalled(QStringLiteral("JetBrains Mono")))
        font.setFamily(QStringLiteral("JetBrains Mono"));
    font.setPixelSize(LenConverter::remToPx(1));
    // Code is shown as it is typed: no arrow for a minus and a greater-than.
    font.setStyleStrategy(QFont::PreferNoShaping);
    return font;
}

TavikLabel *Look::flush(TavikLabel *label)
{
    label->setIndent(0);
    return label;
}

TavikLabel *Look::heading(const QString &text, double rem)
{
    TavikLabel *label = flush(new TavikLabel(text));
    QFont font = label->font();
    font.setWeight(QFont::DemiBold);
    label->setFont(font);
    label->setFontRemSz(rem);
    return label;
}

TavikLabel *Look::paragraph(const QString &text)
{
    TavikLabel *label = flush(new TavikLabel(text));
    label->setWordWrap(true);
    return label;
}

QWidget *Look::captioned(QWidget *widget, const QString &caption)
{
    auto *column = new QWidget;
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, LenConverter::remToPx(SmallGap), 0);
    layout->setSpacing(LenConverter::iniRemToPx(6));
    layout->addStretch();
    layout->addWidget(widget, 0, Qt::AlignLeft);
    layout->addWidget(flush(new TavikLabel(caption, TavikLabel::Assist)));
    layout->addStretch();
    return column;
}

QWidget *Look::live(const QString &name, QWidget *control, QWidget *report)
{
    auto *column = new QWidget;
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(LenConverter::iniRemToPx(6));
    layout->addWidget(flush(new TavikLabel(name)));
    layout->addWidget(control, 0, Qt::AlignLeft);
    layout->addWidget(report);
    layout->addStretch();
    return column;
}

QWidget *Look::row(std::initializer_list<QWidget *> widgets, QWidget *row)
{
    if (!row)
        row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(LenConverter::remToPx(SmallGap));
    for (QWidget *widget : widgets)
        layout->addWidget(widget);
    layout->addStretch();
    return row;
}
