#include "view/grid_drawing.h"

#include "view/rounding.h"

namespace view {

std::vector<DrawnLetter> LayOutGrid(const generator::PuzzleWorkspace& workspace, int surfaceWidth)
{
    const int size = workspace.PuzzleSize;
    std::vector<DrawnLetter> letters;
    for (int row = 1; row <= size; ++row) {
        const double spacing = static_cast<double>(surfaceWidth) / size * 0.8;
        const double y = RoundHalfToEven(row * spacing);
        for (int column = 1; column <= size; ++column) {
            const auto x = static_cast<float>(column * spacing);
            letters.push_back({workspace.PuzzleArray(row, column), x, y});
        }
    }
    return letters;
}

} // namespace view
