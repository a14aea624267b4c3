#pragma once

#include "generator/directions.h"
#include "generator/letter_table.h"
#include "generator/random_source.h"
#include "wordlist/limits.h"

#include <array>
#include <span>
#include <string>
#include <utility>

namespace generator {

inline constexpr int MinPuzzleSize = 10;
inline constexpr int MaxPuzzleSize = 30;

/// Everything the generator works on: the words as letters, the square grid, and the cursor that writes one into the
/// other. The main window owns the only one. Its procedures take no arguments where they can: they speak through
/// these fields.
///
/// A puzzle is made by LoadWordsArray and then LoadPuzzleArray, from blank arrays. Index 0 of every array exists and
/// is never used; cell (row, column) counts from (1, 1) at the top left.
class PuzzleWorkspace {
public:
    explicit PuzzleWorkspace(RandomSource random = RandomSource()) : Random(std::move(random)) {}

    RandomSource Random;

    /// Word 1..40 by letter 1..20: a capital, Blank, or Empty after the word's last character.
    LetterTable<wordlist::MaxWords, wordlist::MaxWordLength> WordsArray;
    /// Row 1..PuzzleSize by column 1..PuzzleSize: a capital or Empty.
    LetterTable<MaxPuzzleSize, MaxPuzzleSize> PuzzleArray;
    int PuzzleSize = 0;  ///< 10..30; 0 before the first puzzle
    int LetterCount = 0; ///< characters stored in WordsArray, blanks included
    int LongestWord = 0; ///< 0..20, the most characters stored for one word

    int CurrentWord = 0; ///< 1..40, the word being placed
    int WordLength = 0;  ///< characters of CurrentWord's whole entry, not capped at 20
    int Direction = 0;   ///< 1..8, an index of Directions
    int CurrentRow = 0;  ///< the cell that takes the next letter
    int CurrentColumn = 0;
    bool WordFits = true; ///< the last TestWordForFit

    int PseudoWord = 0; ///< the word that the pseudo pass checks, with a cursor of its own
    int PseudoRow = 0;
    int PseudoColumn = 0;
    int PseudoLetter = 0;
    bool PseudoFits = false; ///< the last pseudo pass met no clash

    int WordIndex = 0;   ///< 1..40, the word slot being placed
    int LetterIndex = 0; ///< 1..20, the letter slot being written; 21 after a word that fills all slots

    // The words and the grid (workspace.cpp).

    /// Stores the entries of the word list, letters as capitals and everything else as Blank. Characters after an
    /// entry's 20th and entries after the 40th are left out; check a list with ObstacleToPuzzle first.
    void LoadWordsArray(std::span<const std::u16string> words);
    void ClearWordsArray() { WordsArray.Clear(); }
    /// Empties the cells 1..PuzzleSize and no other.
    void ClearPuzzleArray() { PuzzleArray.Clear(PuzzleSize, PuzzleSize); }
    /// WordLength becomes the length of CurrentWord's entry, 0 where the list has none.
    void DetermineWordLength() { WordLength = EntryLengths.at(static_cast<std::size_t>(CurrentWord)); }
    /// PuzzleSize becomes the smallest n of 10..30 whose square holds 1.75 times the letters, but always larger than
    /// the longest word.
    void SetPuzzleSize();
    /// Puts a random capital into every empty cell, row by row.
    void FillPuzzle();
    /// Back to the state between puzzles: blank arrays, cursor at 0. PuzzleSize and the counts stay.
    void Reset();

    // The placement search (placement_search.cpp).

    /// Draws directions and start cells until CurrentWord stays inside the grid.
    void InsertionPointAndDirection();
    void RandomDirectionSelector();
    void RandomStartingPoint();
    /// The bounds rule for WordLength letters from the cursor in Direction. It keeps one cell in hand: no letter
    /// stands on the border that the word runs towards.
    void TestWordForFit();
    void CurrentDirection();
    void PseudoCurrentDirection();
    /// The pseudo pass: PseudoFits tells whether PseudoWord, from the pseudo cursor in Direction, shares at most one
    /// cell with the letters in the grid, and only one that holds its own letter. Writes no cell.
    void PseudoLoadPuzzleArray();

    // The driver (driver.cpp).

    /// Turns the loaded words into a finished grid: sizes it, places every word, fills the rest. Six passes a size,
    /// then one size more; after six passes at 30 x 30 the dense arrangement.
    void LoadPuzzleArray();

    // The dense arrangement (dense_arrangement.cpp).

    /// Places the words of a full list in a grid of 30 x 30: passes that take the words longest first and choose
    /// among all legal placements, and the lanes should every pass fail.
    void ArrangeDensely();
    /// Places any list within the limits in a grid of 30 x 30, without fail: up to 30 words side by side in a band of
    /// rows, ten more across them beyond its ends.
    void ArrangeInLanes();

private:
    class OccupiedLines;

    template <class Move, class Visit>
    void WalkWord(int word, int& slot, Move move, Visit visit) const;
    std::pair<int, int> Starts(int step) const;
    bool PlaceAllWords();
    bool PlaceWord(int& missCount);
    void WriteWord();
    void TakeWord(int word);
    bool PlaceAnywhere(int word, OccupiedLines& lines);
    void PlaceInLane(int word, int lane, int bandStart, bool turned);

    std::array<int, wordlist::MaxWords + 1> EntryLengths{};
};

/// The walk of a word: calls visit(letter) for each letter in order, and move() before each but the first, and stops
/// where visit returns false or at the first empty slot. Blanks take no cell. `slot` follows the slot number and is
/// left at the slot that ended the walk, MaxWordLength + 1 when the word fills them all.
template <class Move, class Visit>
void PuzzleWorkspace::WalkWord(int word, int& slot, Move move, Visit visit) const
{
    bool first = true;
    for (slot = 1; slot <= wordlist::MaxWordLength && WordsArray(word, slot) != Empty; ++slot) {
        const char letter = WordsArray(word, slot);
        if (letter == Blank)
            continue;
        if (!std::exchange(first, false))
            move();
        if (!visit(letter))
            return;
    }
}

} // namespace generator
