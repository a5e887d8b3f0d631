#include "look.h"

#include <QApplication>
#include <QFontDatabase>
#include <QStyle>
#include <QStyleFactory>

#include <Tavik/TavikButton>
#include <Tavik/TavikComboBox>
#include <Tavik/TavikContainer>
#include <Tavik/TavikLabel>

void Look::apply(QApplication &app)
{
    QStyle *style = QStyleFactory::create(QStringLiteral("Fusion"));
    app.setStyle(style);
    app.setPalette(style->standardPalette());
    const QString family = QStringLiteral("Inter");
    if (QFontDatabase().families().contains(family))
        app.setFont(QFont(family));
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
    combo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    auto *place = new TavikContainer;
    place->removeMargins();
    place->setRemSize(remWidth, FieldHeight);
    place->addWidget(combo);
    place->setFocusProxy(combo);
    return place;
}
