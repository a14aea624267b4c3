#include "generator/workspace.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <numeric>
#include <tuple>
#include <vector>

namespace generator {

namespace {

// Measured: the hardest list, 40 words of 20 letters, needs about 40 passes, and 500 take less than 150 ms.
constexpr int DensePasses = 500;

/// Returns the word numbers 1..MaxWords in random order (Fisher-Yates shuffle).
std::vector<int> ShuffledWords(RandomSource& random)
{
    std::vector<int> words(wordlist::MaxWords);
    std::iota(words.begin(), words.end(), 1);
    for (int last = wordlist::MaxWords - 1; last > 0; --last)
        std::iter_swap(words.begin() + last, words.begin() + random.DrawBelow(last + 1));
    return words;
}

} // namespace

/// The occupied cells of each line of the grid (row, column or diagonal) as a bit mask. A word is a mask of adjacent
/// cells in one line, so the bits common to both masks are the cells that it would share.
class PuzzleWorkspace::OccupiedLines {
public:
    /// Whether `letters`, written from the cell in the direction of `step`, share at most one cell with
    /// the grid, and only one that holds the same letter.
    bool Admit(const std::string& letters, Step step, int row, int column, const PuzzleWorkspace& workspace)
    {
        const int first = BitOf(step, row, column);
        const int way = BitOf(step, step.row, step.column); // +1 or -1: the word runs up or down the bits
        const Mask cells = ((Mask{1} << letters.size()) - 1) << (way > 0 ? first : first - std::ssize(letters) + 1);
        const Mask shared = LineOf(step, row, column) & cells;
        if ((shared & (shared - 1)) != 0) // more than one bit
            return false;
        const int letter = way * (std::countr_zero(shared) - first);
        return shared == 0 || workspace.PuzzleArray(row + letter * step.row, column + letter * step.column) ==
                                  letters[static_cast<std::size_t>(letter)];
    }
    void Occupy(int row, int column)
    {
        for (int direction = 1; direction <= DirectionCount; ++direction) {
            const Step step = StepOf(direction);
            LineOf(step, row, column) |= Mask{1} << BitOf(step, row, column);
        }
    }

private:
    using Mask = std::uint32_t;

    /// In a row, bit number = column; in every other line, bit number = row.
    static int BitOf(Step step, int row, int column) { return step.row == 0 ? column : row; }
    /// The line through the cell in the direction of `step`.
    Mask& LineOf(Step step, int row, int column)
    {
        const int line = step.row == 0             ? row
                         : step.column == 0        ? MaxPuzzleSize + column
                         : step.row == step.column ? 3 * MaxPuzzleSize + row - column
                                                   : 4 * MaxPuzzleSize + row + column;
        return Lines[static_cast<std::size_t>(line)];
    }

    std::array<Mask, 6 * MaxPuzzleSize + 1> Lines{};
};

void PuzzleWorkspace::ArrangeDensely()
{
    for (int pass = 0; pass < DensePasses; ++pass) {
        std::vector<int> words = ShuffledWords(Random);
        std::ranges::stable_sort(words, std::ranges::greater(),
                                 [this](int word) { return EntryLengths.at(static_cast<std::size_t>(word)); });
        OccupiedLines lines;
        if (std::ranges::all_of(words, [&](int word) { return PlaceAnywhere(word, lines); }))
            return;
        ClearPuzzleArray();
    }
    ArrangeInLanes();
}

/// Writes the word at one of its legal placements, all equally likely. Returns false when there is none.
bool PuzzleWorkspace::PlaceAnywhere(int word, OccupiedLines& lines)
{
    TakeWord(word);
    std::string letters;
    WalkWord(
        word, [] {}, [&letters](char letter) { return letters.push_back(letter), true; });
    std::vector<std::tuple<int, int, int>> legal; // direction, row, column
    legal.reserve(std::size_t{DirectionCount} * MaxPuzzleSize * MaxPuzzleSize);
    for (int direction = 1; direction <= DirectionCount; ++direction) {
        const Step step = StepOf(direction);
        const auto [firstRow, lastRow] = Starts(step.row);
        const auto [firstColumn, lastColumn] = Starts(step.column);
        for (int row = firstRow; row <= lastRow; ++row)
            for (int column = firstColumn; column <= lastColumn; ++column)
                if (lines.Admit(letters, step, row, column, *this))
                    legal.emplace_back(direction, row, column);
    }
    if (legal.empty())
        return false;
    std::tie(Direction, CurrentRow, CurrentColumn) =
        legal[static_cast<std::size_t>(Random.DrawBelow(static_cast<int>(legal.size())))];
    const Step step = StepOf(Direction);
    for (int letter = 0; letter < static_cast<int>(letters.size()); ++letter)
        lines.Occupy(CurrentRow + letter * step.row, CurrentColumn + letter * step.column);
    WriteWord();
    return true;
}

void PuzzleWorkspace::ArrangeInLanes()
{
    // The band touches neither border, so words can run both ways in it.
    const int bandStart = 2 + Random.DrawBelow(MaxPuzzleSize - 1 - wordlist::MaxWordLength);
    const bool turned = Random.DrawBelow(2) == 1;
    int lane = 0;
    for (const int word : ShuffledWords(Random))
        PlaceInLane(word, ++lane, bandStart, turned);
}

/// A lane is 20 cells, and its word lies anywhere in it, in either direction. Lanes 1..MaxPuzzleSize are the rows of
/// the band; lanes after them are the columns to its left and right. `turned` swaps rows and columns.
void PuzzleWorkspace::PlaceInLane(int word, int lane, int bandStart, bool turned)
{
    constexpr int Lane = wordlist::MaxWordLength;
    TakeWord(word);
    const bool inBand = lane <= MaxPuzzleSize;
    int line = inBand ? lane : lane - MaxPuzzleSize;
    if (!inBand && line >= bandStart)
        line += Lane; // on the other side of the band

    const int laneStart = inBand ? bandStart : 2 + Random.DrawBelow(MaxPuzzleSize - 1 - Lane);
    const bool backwards = Random.DrawBelow(2) == 1;
    const int start = laneStart + Random.DrawBelow(Lane - WordLength + 1) + (backwards ? WordLength - 1 : 0);

    const bool alongRow = inBand != turned;
    Direction = alongRow ? (backwards ? 4 : 3) : (backwards ? 2 : 1);
    CurrentRow = alongRow ? line : start;
    CurrentColumn = alongRow ? start : line;
    WriteWord();
}

} // namespace generator
