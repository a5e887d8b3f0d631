#ifndef GALLERY_CODELABEL_H
#define GALLERY_CODELABEL_H

#include <QLabel>

/// Monospaced text that the pointer can select.
class CodeLabel : public QLabel
{
    Q_OBJECT

public:
    explicit CodeLabel(const QString &text, QWidget *parent = nullptr);
};

#endif
