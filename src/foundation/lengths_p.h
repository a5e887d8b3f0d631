#ifndef TAVIK_LENGTHS_P_H
#define TAVIK_LENGTHS_P_H

#include "foundation/lenconverter.h"

namespace Lengths {

/// A size in rem to one in pixels.
inline QSize remToPx(const QSizeF &rem)
{
    return {LenConverter::remToPx(rem.width()), LenConverter::remToPx(rem.height())};
}

} // namespace Lengths

#endif
