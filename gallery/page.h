#ifndef GALLERY_PAGE_H
#define GALLERY_PAGE_H

#include "snippet.h"

#include <QWidget>

class QGridLayout;

/// A page of the gallery: a sentence of introduction and examples in two columns.
///
/// A new page is a subclass that calls addExample() in its constructor, and a line in pageTable().
class Page : public QWidget
{
    Q_OBJECT

protected:
    /// How much of the page's width an example takes.
    enum Span { Half = 1, Whole = 2 };

    explicit Page(const QString &introduction);

    /// Adds a card at the next free place; the card takes over the specimen.
    void addExample(Span span, const QString &name, const QString &description, QWidget *specimen,
                    const Snippet &code = {});

private:
    QGridLayout *m_examples;
    int m_row = 0;
    int m_column = 0;
};

#endif
