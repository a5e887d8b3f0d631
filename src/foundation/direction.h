#ifndef TAVIK_DIRECTION_H
#define TAVIK_DIRECTION_H

/// \file
/// The direction of boxes and button groups.

/// The way in which a container or a button group lines up what it holds.
///
/// Unscoped, so that both spellings work:
/// \code
/// auto *row = new TavikContainer(Horizontal, this);
/// auto *column = new TavikContainer(Direction::Vertical, this);
/// \endcode
enum Direction : int {
    Vertical = 0,   ///< From top to bottom, in a QVBoxLayout.
    Horizontal = 1, ///< Side by side, in a QHBoxLayout.
};

#endif
