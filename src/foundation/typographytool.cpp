#include "foundation/typographytool.h"

#include "foundation/lenconverter.h"

#include <QWidget>

void TypographyTool::setFontHint(QWidget *widget)
{
    if (!widget)
        return;
    QFont font = widget->font();
    font.setHintingPreference(QFont::PreferVerticalHinting);
    widget->setFont(font);
}

QString TypographyTool::defualtFontSz()
{
    return LenConverter::strRemToStrPx(QStringLiteral("1.167"));
}

QString TypographyTool::assistFontSz()
{
    return LenConverter::strRemToStrPx(QStringLiteral("1.0"));
}
