#include "generator/directions.h"
#include "generator/workspace.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace generator {

namespace {

// 40 words of 20 letters, the hardest list, take about 70 passes; all of these together stay below a second.
constexpr int DensePasses = 500;

struct Placement {
    int direction;
    int row;
    int column;
};

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

void PuzzleWorkspace::ArrangeDensely()
{
    Arranged = Arrangement::Dense;
    for (int pass = 0; pass < DensePasses; ++pass) {
        std::vector<int> words = ShuffledWords(Random);
        std::ranges::stable_sort(words, std::ranges::greater(),
                                 [this](int word) { return EntryLengths.at(static_cast<std::size_t>(word)); });
        if (PlaceAllDensely(words))
            return;
        ClearPuzzleArray();
    }
    ArrangeInLanes();
}

bool PuzzleWorkspace::PlaceAllDensely(std::span<const int> words)
{
    return std::ranges::all_of(words, [this](int word) { return PlaceAnywhere(word); });
}

/// Places the word on one of all its legal placements, each with equal chance; false where there is none.
bool PuzzleWorkspace::PlaceAnywhere(int word)
{
    TakeWord(word);
    std::vector<Placement> legal;
    for (Direction = 1; Direction <= DirectionCount; ++Direction)
        for (CurrentRow = 1; CurrentRow <= PuzzleSize; ++CurrentRow)
            for (CurrentColumn = 1; CurrentColumn <= PuzzleSize; ++CurrentColumn) {
                TestWordForFit();
                if (!WordFits)
                    continue;
                CheckForClash();
                if (PseudoFits)
                    legal.push_back({Direction, CurrentRow, CurrentColumn});
            }
    if (legal.empty())
        return false;
    const Placement& chosen = legal[static_cast<std::size_t>(Random.DrawBelow(static_cast<int>(legal.size())))];
    Direction = chosen.direction;
    CurrentRow = chosen.row;
    CurrentColumn = chosen.column;
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

/// Lanes 1..MaxPuzzleSize lie across the band, one a row; the lanes after them are the columns beyond the
/// band's ends. `turned` swaps rows and columns. A word runs either way, anywhere in its lane's 20 cells.
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
