#ifndef GALLERY_PAGETABLE_H
#define GALLERY_PAGETABLE_H

#include <QString>
#include <QVector>

class Page;

/// A page as the navigation and the command line know it.
struct PageEntry
{
    QString name;            ///< For --page and for the names of pictures.
    const char *sourceTitle; ///< As it stands in the source.
    Page *(*make)();

    /// The title for people, in their language.
    QString title() const;
};

/// All pages, in the order of the navigation.
const QVector<PageEntry> &pageTable();

/// The entry of a name; null if there is none.
const PageEntry *findPage(const QString &name);

#endif
