#include "view/grid_drawing.h"

#include <cmath>

namespace view {

std::vector<DrawnLetter> LayOutGrid(const generator::PuzzleWorkspace& workspace, double surfaceWidth)
{
    const int size = workspace.PuzzleSize;
    const double spacing = surfaceWidth / size * 0.8;
    std::vector<DrawnLetter> letters;
    for (int row = 1; row <= size; ++row) {
        const double y = std::nearbyint(row * spacing); // ties go to even
        for (int column = 1; column <= size; ++column)
            letters.push_back({workspace.PuzzleArray(row, column), static_cast<float>(column * spacing), y});
    }
    return letters;
}

} // namespace view
