#ifndef GALLERY_RULESPECIMENS_H
#define GALLERY_RULESPECIMENS_H

#include <QCoreApplication>

class QWidget;

/// Specimens of TavikSeperateLine.
class RuleSpecimens
{
    Q_DECLARE_TR_FUNCTIONS(RuleSpecimens)

public:
    static QWidget *inRem();
    static QWidget *inPixels();
};

#endif
