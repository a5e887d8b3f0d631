#ifndef TAVIK_SPINBOXSHEET_P_H
#define TAVIK_SPINBOXSHEET_P_H

#include <QString>

namespace SpinboxSheet {

/// The sheet that both spin boxes share: `className` stands in its selectors, `fontSz` is in pixels without
/// a unit, and `beforeDownFill` is what the two active rules of the down button say before their fill.
QString withButtons(const char *className, const QString &fontSz, const char *beforeDownFill = "");

/// The sheet of a spin box without step buttons.
QString withoutButtons(const char *className, const QString &fontSz);

} // namespace SpinboxSheet

#endif
