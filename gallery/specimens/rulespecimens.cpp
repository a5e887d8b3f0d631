#include "rulespecimens.h"

#include "look.h"

#include <Tavik/TavikSeperateLine>

QWidget *RuleSpecimens::inRem()
{
    //! [inRem]
    auto *rule = new TavikSeperateLine(30.0);
    //! [inRem]
    return Look::captioned(rule, tr("30 rem"));
}

QWidget *RuleSpecimens::inPixels()
{
    //! [inPixels]
    auto *rule = new TavikSeperateLine(240);
    //! [inPixels]
    return Look::captioned(rule, tr("240 pixels"));
}
