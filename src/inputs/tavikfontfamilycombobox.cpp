#include "inputs/tavikfontfamilycombobox.h"

#include <QCompleter>
#include <QFontDatabase>
#include <QThread>

namespace {

/// Deletes a completer. Where an event loop runs it goes only with that loop's next round, for it may be what has
/// called, or the toolkit may be going through the children of the field.
void retire(QCompleter *completer)
{
    if (QThread::currentThread()->loopLevel() == 0) {
        delete completer;
        return;
    }
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
