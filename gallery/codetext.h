#ifndef GALLERY_CODETEXT_H
#define GALLERY_CODETEXT_H

#include "surface.h"

class TavikButton;

/// A few lines of code in a box, to select or to copy as a whole.
class CodeText : public Surface
{
    Q_OBJECT

public:
    explicit CodeText(const QString &code, QWidget *parent = nullptr);

private:
    void copy();

    QString m_code;
    TavikButton *m_copyButton;
};

#endif
