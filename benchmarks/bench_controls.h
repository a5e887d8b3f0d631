#ifndef TAVIK_BENCH_CONTROLS_H
#define TAVIK_BENCH_CONTROLS_H

/// Registers the making and showing of 500 of each control against stock widgets with the same sheet.
void registerControls();

#endif
