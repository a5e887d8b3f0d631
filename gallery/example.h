#ifndef GALLERY_EXAMPLE_H
#define GALLERY_EXAMPLE_H

#include "surface.h"

/// A card of a page: what it shows, a specimen of it, and the code that makes it.
class Example : public Surface
{
    Q_OBJECT

public:
    /// Takes over the specimen. Without a code the card ends with the specimen.
    Example(const QString &name, const QString &description, QWidget *specimen, const QString &code,
            QWidget *parent = nullptr);
};

#endif
