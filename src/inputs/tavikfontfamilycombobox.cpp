#include "tavikfontfamilycombobox.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QFontDatabase>

namespace {

/// Deletes a completer, at once unless it may be what has called: while its list is open it hands on what is
/// typed, and goes on afterwards.
void retire(QCompleter *completer)
{
    const QWidget *open = QApplication::activePopupWidget();
    if (!open || open != static_cast<QWidget *>(completer->popup())) { // asking for its list makes one
        delete completer;
        return;
    }
    completer->popup()->hide();
    completer->setParent(nullptr);
    completer->deleteLater();
}

} // namespace

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
    if (completer())
        retire(completer());
    setCompleter(newCompleter);
    setInsertPolicy(NoInsert);
}
