#pragma once

#include "generator/workspace.h"

#include <vector>

namespace view {

/// A letter of the grid and where it is written.
struct DrawnLetter {
    char letter;
    double x; ///< left edge in twips from the surface's left, not rounded
    double y; ///< top edge in twips from the surface's top, whole
};

/// The distance between the letters of a grid of `size` rows on a square surface of `surfaceWidth`: they take four
/// fifths of it.
double GridSpacing(int size, double surfaceWidth);

/// The letters of the grid, row by row, on a square surface of `surfaceWidth` twips: cell (r, c) is c spacings from
/// the left and r from the top. Empty while there is no grid.
std::vector<DrawnLetter> LayOutGrid(const generator::PuzzleWorkspace& workspace, int surfaceWidth);

} // namespace view
