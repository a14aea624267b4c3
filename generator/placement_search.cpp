#include "generator/workspace.h"

#include <algorithm>

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
    const auto fits = [this](int at, int step) { return Starts(step).first <= at && at <= Starts(step).second; };
    WordFits = fits(CurrentRow, StepOf(Direction).row) && fits(CurrentColumn, StepOf(Direction).column);
}

/// Returns the first and last row (or column) from which the cell after the word's end is still inside the grid.
std::pair<int, int> PuzzleWorkspace::Starts(int step) const
{
    return {std::max(1, 1 - step * WordLength), std::min(PuzzleSize, PuzzleSize - step * WordLength)};
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
    int sharedLetters = 0;
    const auto move = [this] { PseudoCurrentDirection(); };
    PseudoLetter = WalkWord(PseudoWord, move, [&](char letter) {
        const char cell = PuzzleArray(PseudoRow, PseudoColumn);
        PseudoFits = cell == Empty || (cell == letter && ++sharedLetters == 1);
        return PseudoFits;
    });
}

} // namespace generator
