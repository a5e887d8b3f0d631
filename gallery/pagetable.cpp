#include "pagetable.h"

#include "pages/buttonspage.h"
#include "pages/choicespage.h"
#include "pages/colourspage.h"
#include "pages/containerspage.h"
#include "pages/inputspage.h"
#include "pages/labelspage.h"
#include "pages/picturespage.h"

#include <algorithm>

#include <QCoreApplication>

namespace {

template <class P>
PageEntry entry(const char *name, const char *sourceTitle)
{
    return {QString::fromLatin1(name), sourceTitle, []() -> Page * { return new P; }};
}

} // namespace

QString PageEntry::title() const
{
    return QCoreApplication::translate("PageTable", sourceTitle);
}

const QVector<PageEntry> &pageTable()
{
    static const QVector<PageEntry> table{
        entry<LabelsPage>("labels", QT_TRANSLATE_NOOP("PageTable", "Labels")),
        entry<ButtonsPage>("buttons", QT_TRANSLATE_NOOP("PageTable", "Buttons")),
        entry<InputsPage>("inputs", QT_TRANSLATE_NOOP("PageTable", "Inputs")),
        entry<ChoicesPage>("choices", QT_TRANSLATE_NOOP("PageTable", "Choices")),
        entry<ContainersPage>("containers", QT_TRANSLATE_NOOP("PageTable", "Containers")),
        entry<ColoursPage>("colours", QT_TRANSLATE_NOOP("PageTable", "Colours")),
        entry<PicturesPage>("pictures", QT_TRANSLATE_NOOP("PageTable", "Pictures")),
    };
    return table;
}

const PageEntry *findPage(const QString &name)
{
    const QVector<PageEntry> &table = pageTable();
    const auto found = std::find_if(table.begin(), table.end(),
                                    [&name](const PageEntry &page) { return page.name == name; });
    return found == table.end() ? nullptr : &*found;
}
