#include "pagetable.h"

#include "pages/buttonspage.h"
#include "pages/choicespage.h"
#include "pages/containerspage.h"
#include "pages/inputspage.h"
#include "pages/labelspage.h"
#include "pages/picturespage.h"

#include <algorithm>

#include <QCoreApplication>

namespace {

template <class P>
PageEntry entry(const char *name, const QString &title)
{
    return {QString::fromLatin1(name), title, []() -> Page * { return new P; }};
}

QString tr(const char *text)
{
    return QCoreApplication::translate("PageTable", text);
}

} // namespace

const QVector<PageEntry> &pageTable()
{
    static const QVector<PageEntry> table{
        entry<LabelsPage>("labels", tr(QT_TRANSLATE_NOOP("PageTable", "Labels"))),
        entry<ButtonsPage>("buttons", tr(QT_TRANSLATE_NOOP("PageTable", "Buttons"))),
        entry<InputsPage>("inputs", tr(QT_TRANSLATE_NOOP("PageTable", "Inputs"))),
        entry<ChoicesPage>("choices", tr(QT_TRANSLATE_NOOP("PageTable", "Choices"))),
        entry<ContainersPage>("containers", tr(QT_TRANSLATE_NOOP("PageTable", "Containers"))),
        entry<PicturesPage>("pictures", tr(QT_TRANSLATE_NOOP("PageTable", "Pictures"))),
    };
    return table;
}

const PageEntry *findPage(const QString &name)
{
    const QVector<PageEntry> &table = pageTable();
    const auto found = std::find_if(table.begin(), table.end(),
                                    [&name](const PageEntry &page) { return page.name == name; });
    return found == table.end() ? nullptr : found;
}
