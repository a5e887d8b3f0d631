#ifndef TAVIK_COLORNAME_P_H
#define TAVIK_COLORNAME_P_H

#include <QCoreApplication>

class QColor;

/// How a colour is told to those who can't see it.
class ColorName
{
    Q_DECLARE_TR_FUNCTIONS(ColorName)

public:
    /// "#2e7d5b", or "#2e7d5b, alpha 40 %" where it isn't opaque.
    static QString of(const QColor &color);
};

#endif
