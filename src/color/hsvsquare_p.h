#ifndef TAVIK_HSVSQUARE_P_H
#define TAVIK_HSVSQUARE_P_H

#include <QImage>

namespace HsvSquare {

/// Fills an image of Format_RGB32 with all saturations (0 to below 1, left to right) and values (1 to above
/// 0, top to bottom) of one hue, each pixel exactly that of QColor::fromHsvF(): grey for the hue -1, black
/// for a hue that it refuses.
void fill(QImage &image, double hue);

} // namespace HsvSquare

#endif
