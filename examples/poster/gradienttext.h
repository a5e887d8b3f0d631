#ifndef POSTER_GRADIENTTEXT_H
#define POSTER_GRADIENTTEXT_H

#include <QString>

struct PosterSettings;

/// A poster's gradient as text, to paste into other programs.
namespace GradientText {

/// For the toolkit's style sheets: "qlineargradient(...)". It looks the same on widgets of the poster's
/// proportions.
QString styleSheet(const PosterSettings &settings);

/// For web pages: "linear-gradient(...)".
QString css(const PosterSettings &settings);

} // namespace GradientText

#endif
