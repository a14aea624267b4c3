#include "generator/directions.h"
#include "generator/workspace.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <numeric>
#include <string>
#include <tuple>
#include <vector>

namespace generator {

namespace {

// 40 words of 20 letters, the hardest list, take about 70 passes; all of these together stay below 150 ms.
constexpr int DensePasses = 500;

/// Word numbers 1..MaxWords in an order drawn at random (Fisher and Yates' shuffle).
std::vector<int> ShuffledWords(RandomSource& random)
{
    std::vector<int> words(wordlist::MaxWords);
    std::iota(words.begin(), words.end(), 1);
    for (int last = wordlist::MaxWords - 1; last > 0; --last)
        std::swap(words[static_cast<std::size_t>(last)], words[static_cast<std::size_t>(random.DrawBelow(last + 1))]);
    return words;
}

} // namespace

/// For each direction the lines of the grid that run in it, each as the mask of its occupied cells, in the order in
/// which a word passes them. So a word is a run of bits, and what it would meet is found in one step.
class PuzzleWorkspace::OccupiedLines {
public:
    /// The letters of a word of `count` that would meet an occupied cell: bit 0 for the first.
    std::uint32_t Met(int direction, int row, int column, std::size_t count)
    {
        const auto [line, place] = Find(direction, row, column);
        return line >> place & ((1U << count) - 1);
    }
    void Occupy(int row, int column)
    {
        for (int direction = 1; direction <= DirectionCount; ++direction) {
            const auto [line, place] = Find(direction, row, column);
            line |= 1U << place;
        }
    }

private:
    struct CellOfLine {
        std::uint32_t& line;
        int place; ///< 1..31
    };
    CellOfLine Find(int direction, int row, int column)
    {
        const auto [rowStep, columnStep] = StepOf(direction);
        const int line = row * columnStep - column * rowStep; // the same for all of its cells
        const int place = rowStep != 0 ? rowStep * row : columnStep * column;
        return {Lines[static_cast<std::size_t>(direction)][static_cast<std::size_t>(line + 2 * MaxPuzzleSize)],
                place & 31}; // backwards it counts from the far end
    }
    std::array<std::array<std::uint32_t, 4 * MaxPuzzleSize + 1>, DirectionCount + 1> Lines{};
};

void PuzzleWorkspace::ArrangeDensely()
{
    Arranged = Arrangement::Dense;
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

/// Places the word on one of all its legal placements, each with equal chance; false where there is none.
bool PuzzleWorkspace::PlaceAnywhere(int word, OccupiedLines& lines)
{
    TakeWord(word);
    std::string letters;
    WalkWord(
        word, LetterIndex, [] {}, [&letters](char letter) { return letters.push_back(letter), true; });
    std::vector<std::tuple<int, int, int>> legal; // direction, row, column
    for (int direction = 1; direction <= DirectionCount; ++direction) {
        const auto [rowStep, columnStep] = StepOf(direction);
        const auto [firstRow, lastRow] = Starts(rowStep);
        const auto [firstColumn, lastColumn] = Starts(columnStep);
        for (int row = firstRow; row <= lastRow; ++row)
            for (int column = firstColumn; column <= lastColumn; ++column) {
                const auto met = lines.Met(direction, row, column, letters.size());
                const int letter = std::countr_zero(met); // the first that would meet another word
                const bool severalMet = (met & (met - 1)) != 0;
                if (met == 0 || (!severalMet && PuzzleArray(row + letter * rowStep, column + letter * columnStep) ==
                                                    letters[static_cast<std::size_t>(letter)]))
                    legal.emplace_back(direction, row, column);
            }
    }
    if (legal.empty())
        return false;
    std::tie(Direction, CurrentRow, CurrentColumn) =
        legal[static_cast<std::size_t>(Random.DrawBelow(static_cast<int>(legal.size())))];
    const auto [rowStep, columnStep] = StepOf(Direction);
    for (int letter = 0; letter < static_cast<int>(letters.size()); ++letter)
        lines.Occupy(CurrentRow + letter * rowStep, CurrentColumn + letter * columnStep);
    WriteWord();
    return true;
}

void PuzzleWorkspace::ArrangeInLanes()
{
    Arranged = Arrangement::Lanes;
    // The band is as long as the longest word may be and keeps off both borders, so that words may run either
    // way in it. The ten lanes beyond its ends are crossed by none of the band's.
    const int bandStart = 2 + Random.DrawBelow(MaxPuzzleSize - 1 - wordlist::MaxWordLength);
    const bool turned = Random.DrawBelow(2) == 1;
    int lane = 0;
    for (const int word : ShuffledWords(Random))
        PlaceInLane(word, ++lane, bandStart, turned);
}

/// Lanes 1..MaxPuzzleSize lie across the band, one a row; the lanes after them are the columns beyond the band's
/// ends. `turned` swaps rows and columns. A word runs either way, anywhere in its lane's 20 cells.
void PuzzleWorkspace::PlaceInLane(int word, int lane, int bandStart, bool turned)
{
    constexpr int Lane = wordlist::MaxWordLength;
    TakeWord(word);
    const bool acrossBand = lane <= MaxPuzzleSize;
    int across = lane;
    if (!acrossBand)
        across = lane - MaxPuzzleSize < bandStart ? lane - MaxPuzzleSize : lane - MaxPuzzleSize + Lane;

    const int laneStart = acrossBand ? bandStart : 2 + Random.DrawBelow(MaxPuzzleSize - 1 - Lane);
    const bool backwards = Random.DrawBelow(2) == 1;
    const int firstCell = laneStart + Random.DrawBelow(Lane - WordLength + 1);
    const int start = backwards ? firstCell + WordLength - 1 : firstCell;

    const bool alongRow = acrossBand != turned;
    Direction = alongRow ? (backwards ? 4 : 3) : (backwards ? 2 : 1);
    CurrentRow = alongRow ? across : start;
    CurrentColumn = alongRow ? start : across;
    WriteWord();
}

} // namespace generator
