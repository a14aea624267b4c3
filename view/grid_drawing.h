#pragma once

#include "generator/workspace.h"

#include <vector>

namespace view {

/// A letter of the grid and its place on the surface.
struct DrawnLetter {
    char letter;
    double x; ///< left edge in twips (1/1440 inch), of single precision
    double y; ///< top edge in whole twips
};

/// Places the letters of the grid, row by row, on a square surface of `surfaceWidth` twips, four fifths of which they
/// take. Cell (r, c), counted from 1, lies c spacings from the left and r from the top. Empty while there is no grid.
std::vector<DrawnLetter> LayOutGrid(const generator::PuzzleWorkspace& workspace, double surfaceWidth);

} // namespace view
