#include "look.h"

#include "common/comboplace.h"
#include "common/sharpicons.h"

#include <QApplication>
#include <QFontDatabase>
#include <QStyle>
#include <QStyleFactory>

#include <Tavik/TavikButton>
#include <Tavik/TavikComboBox>
#include <Tavik/TavikLabel>
#include <Tavik/TypographyTool>

void Look::apply(QApplication &app)
{
    drawIconsSharply();
    QStyle *style = QStyleFactory::create(QStringLiteral("Fusion"));
    app.setStyle(style);
    app.setPalette(style->standardPalette());
    QFont font = app.font();
    const QString family = QStringLiteral("Inter");
    if (QFontDatabase().families().contains(family))
        font.setFamily(family);
    // Step buttons, arrows and scroll bars are as wide as this font tells.
    font.setPixelSize(TypographyTool::defualtFontSz().toInt());
    app.setFont(font);
}

TavikLabel *Look::label(const QString &text)
{
    auto *label = new TavikLabel(text);
    label->setIndent(0);
    return label;
}

TavikButton *Look::button(const QString &text, double remWidth, bool isOutlined)
{
    auto *button = new TavikButton(text, isOutlined ? TavikButton::Outline : TavikButton::Solid);
    button->setRemSize(remWidth, FieldHeight);
    return button;
}

QWidget *Look::place(TavikComboBox *combo, double remWidth)
{
    combo->setFocusPolicy(Qt::StrongFocus); // not by a wheel that scrolls the page under the pointer
    return new ComboPlace(combo, remWidth, FieldHeight);
}
