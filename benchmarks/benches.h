#ifndef TAVIK_BENCHMARKS_BENCHES_H
#define TAVIK_BENCHMARKS_BENCHES_H

/// The making and showing of 500 of each control, against stock widgets with the same sheets.
void registerControls();

/// A step of an expandable's animation, and the filling of an image list.
void registerContainers();

/// A step of a drag in the colour popup, against the toolkit's colour dialog and against the plain way.
void registerPopup();

/// The colour square, built and repainted, and the alpha slider, against their plain ways.
void registerColor();

/// A move of the sampler's pointer, against a repaint of its whole window.
void registerSampler();

/// Prints both times of it, in milliseconds; makes its own application, on the caller's platform.
int printSamplerTimes(int argc, char **argv);

#endif
