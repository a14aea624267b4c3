#include "view/grid_drawing.h"

#include <cmath>

namespace view {

double GridSpacing(int size, double surfaceWidth)
{
    return surfaceWidth / size * 0.8;
}

std::vector<DrawnLetter> LayOutGrid(const generator::PuzzleWorkspace& workspace, int surfaceWidth)
{
    const int size = workspace.PuzzleSize;
    std::vector<DrawnLetter> letters;
    for (int row = 1; row <= size; ++row) {
        const double spacing = GridSpacing(size, surfaceWidth);
        const double y = std::nearbyint(row * spacing); // halves go to the even neighbour
        for (int column = 1; column <= size; ++column) {
            const auto x = static_cast<float>(column * spacing);
            letters.push_back({workspace.PuzzleArray(row, column), x, y});
        }
    }
    return letters;
}

} // namespace view
