#ifndef GALLERY_GUIDESAMPLES_H
#define GALLERY_GUIDESAMPLES_H

class QWidget;

/// What the guide in docs/ shows beside the single controls.
namespace GuideSamples {

/// The window of the guide's first program.
QWidget *start();

/// The same row of controls at each number of pixels per rem.
QWidget *lengths();

/// Two controls that ask for a colour, and the popup below the first.
QWidget *wiring();

/// A form from right to left.
QWidget *rightToLeft();

} // namespace GuideSamples

#endif
