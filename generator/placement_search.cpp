#include "generator/directions.h"
#include "generator/workspace.h"

namespace generator {

void PuzzleWorkspace::InsertionPointAndDirection()
{
    do {
        RandomDirectionSelector();
        RandomStartingPoint();
        TestWordForFit();
    } while (!WordFits);
}

void PuzzleWorkspace::RandomDirectionSelector()
{
    Random.Reseed();
    Direction = 1 + Random.DrawBelow(DirectionCount);
}

void PuzzleWorkspace::RandomStartingPoint()
{
    Random.Reseed();
    CurrentRow = 1 + Random.DrawBelow(PuzzleSize);
    CurrentColumn = 1 + Random.DrawBelow(PuzzleSize);
}

void PuzzleWorkspace::TestWordForFit()
{
    const auto [firstRow, lastRow] = Starts(StepOf(Direction).row);
    const auto [firstColumn, lastColumn] = Starts(StepOf(Direction).column);
    WordFits = firstRow <= CurrentRow && CurrentRow <= lastRow && firstColumn <= CurrentColumn &&
               CurrentColumn <= lastColumn;
}

/// The first and the last row or column from which the word keeps inside: the cell after its last must still be in
/// the grid, so that no letter stands on the border towards which it runs.
std::pair<int, int> PuzzleWorkspace::Starts(int step) const
{
    return {step < 0 ? 1 + WordLength : 1, step > 0 ? PuzzleSize - WordLength : PuzzleSize};
}

void PuzzleWorkspace::CurrentDirection()
{
    CurrentRow += StepOf(Direction).row;
    CurrentColumn += StepOf(Direction).column;
}

void PuzzleWorkspace::PseudoCurrentDirection()
{
    PseudoRow += StepOf(Direction).row;
    PseudoColumn += StepOf(Direction).column;
}

void PuzzleWorkspace::PseudoLoadPuzzleArray()
{
    PseudoFits = true;
    int SharedLetters = 0;
    const auto move = [this] { PseudoCurrentDirection(); };
    WalkWord(PseudoWord, PseudoLetter, move, [&](char letter) {
        const char cell = PuzzleArray(PseudoRow, PseudoColumn);
        if (cell != Empty)
            SharedLetters = cell == letter ? SharedLetters + 1 : 2;
        PseudoFits = SharedLetters < 2;
        return PseudoFits;
    });
}

} // namespace generator
