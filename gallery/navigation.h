#ifndef GALLERY_NAVIGATION_H
#define GALLERY_NAVIGATION_H

#include <QWidget>

struct PageEntry;

/// The list of pages, at the left of the window.
class Navigation : public QWidget
{
    Q_OBJECT

public:
    explicit Navigation(const QString &currentPage, QWidget *parent = nullptr);

Q_SIGNALS:
    /// The user went to a page, by its name.
    void pageChosen(const QString &name);

private:
    QWidget *pageButton(const PageEntry &page, bool isCurrent);
};

#endif
