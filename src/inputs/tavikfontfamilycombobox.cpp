#include "tavikfontfamilycombobox.h"

#include <QCompleter>
#include <QFontDatabase>

TavikFontFamilyComboBox::TavikFontFamilyComboBox(QWidget *parent)
    : TavikComboBox(Editable, parent)
{
    initFontFamilies();
}

void TavikFontFamilyComboBox::initFontFamilies()
{
    clear();
    const QStringList families = QFontDatabase().families();
    insertItems(count(), families);
    if (!isEditable())
        return; // an application has made it so, and there is nothing to complete

    auto *newCompleter = new QCompleter(families, this);
    newCompleter->setCaseSensitivity(Qt::CaseInsensitive);
    delete completer();
    setCompleter(newCompleter);
    setInsertPolicy(NoInsert);
}
