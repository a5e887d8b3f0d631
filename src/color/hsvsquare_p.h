#ifndef TAVIK_HSVSQUARE_P_H
#define TAVIK_HSVSQUARE_P_H

#include <QImage>

namespace HsvSquare {

/// All saturations (0 to below 1, left to right) and values (1 to above 0, top to bottom) of one hue, each
/// pixel exactly that of QColor::fromHsvF(): grey for the hue -1, black for a hue that it refuses. Both
/// lengths are above 0; the image is null if there is no memory for it.
QImage image(double hue, const QSize &size);

} // namespace HsvSquare

#endif
