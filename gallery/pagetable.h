#ifndef GALLERY_PAGETABLE_H
#define GALLERY_PAGETABLE_H

#include <QString>
#include <QVector>

class Page;

/// A page as the navigation and the command line know it.
struct PageEntry
{
    QString name;  ///< For --page and for the names of pictures.
    QString title; ///< For people.
    Page *(*make)();
};

/// All pages, in the order of the navigation.
const QVector<PageEntry> &pageTable();

/// The entry of a name; null if there is none.
const PageEntry *findPage(const QString &name);

#endif
