#ifndef POSTER_SETTINGSFIELDS_H
#define POSTER_SETTINGSFIELDS_H

#include "postersettings.h"
#include "postersizes.h"

/// The one table of what a settings file holds: names, in sections, with what is allowed. An archive reads or
/// writes a field by a function for its kind.
template <class Archive, class Settings>
void describeFields(Archive &archive, Settings &s)
{
    archive.flag("photograph.shown", s.hasPhotograph);
    archive.file("photograph.file", s.photograph);
    archive.color("photograph.ground", s.ground);

    archive.flag("gradient.shown", s.hasGradient);
    archive.color("gradient.start-color", s.startColor);
    archive.color("gradient.end-color", s.endColor);
    archive.number("gradient.start", s.startValue, 0, 99);
    archive.number("gradient.end", s.endValue, s.startValue + 1, 100);
    archive.number("gradient.angle", s.angle, 0, 359);
    archive.number("gradient.opacity", s.opacity, 0, 100);

    archive.text("caption.text", s.caption);
    archive.text("caption.family", s.family);
    archive.number("caption.size", s.captionSize, 1.0, 50.0);
    archive.flag("caption.bold", s.isBold);
    archive.color("caption.color", s.captionColor);
    archive.color("caption.shadow", s.shadowColor);
    archive.choice("caption.column", s.captionColumn, {"left", "centre", "right"});
    archive.choice("caption.row", s.captionRow, {"top", "middle", "bottom"});

    archive.number("export.width", s.width, PosterSettings::MinimumSide, PosterSettings::MaximumSide);
    archive.number("export.height", s.height, PosterSettings::MinimumSide, PosterSettings::MaximumSide);
    archive.flag("export.batch", s.isBatch);
    archive.sizes("export.sizes", s.batch);
}

#endif
