#include "generator/directions.h"
#include "generator/workspace.h"

namespace generator {

namespace {

const Step& StepOf(int direction)
{
    return Directions.at(static_cast<std::size_t>(direction));
}

} // namespace

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
    const auto [rowStep, columnStep] = StepOf(Direction);
    WordFits = StaysInside(CurrentRow, rowStep) && StaysInside(CurrentColumn, columnStep);
}

/// One row or column of the bounds rule: the cell after the word's last must still be inside, so that no
/// letter stands on the border towards which the word runs.
bool PuzzleWorkspace::StaysInside(int position, int step) const
{
    const int afterLast = position + step * WordLength;
    return afterLast >= 1 && afterLast <= PuzzleSize;
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
    bool first = true;
    WalkWord(PseudoWord, PseudoLetter, [&](char letter) {
        if (!first)
            PseudoCurrentDirection();
        first = false;
        const char cell = PuzzleArray(PseudoRow, PseudoColumn);
        if (cell != Empty)
            SharedLetters = cell == letter ? SharedLetters + 1 : 2;
        PseudoFits = SharedLetters < 2;
        return PseudoFits;
    });
}

} // namespace generator
