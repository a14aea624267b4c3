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

/// The generator with all its data: the words as letters, the square grid, and the cursor that writes words into the
/// grid. The procedures communicate through these fields. To make a puzzle, call LoadWordsArray and then
/// LoadPuzzleArray on empty arrays.
///
/// Indices start at 1: cell (1, 1) is at the top left. Index 0 of every array exists but is never used.
class PuzzleWorkspace {
public:
    explicit PuzzleWorkspace(RandomSource random = RandomSource()) : Random(std::move(random)) {}

    RandomSource Random;

    /// Word 1..40 by letter 1..20: a capital, Blank, or Empty after the last character.
    LetterTable<wordlist::MaxWords, wordlist::MaxWordLength> WordsArray;
    /// Row 1..PuzzleSize by column 1..PuzzleSize: a capital or Empty.
    LetterTable<MaxPuzzleSize, MaxPuzzleSize> PuzzleArray;
    int PuzzleSize = 0;  ///< 10..30; 0 before the first puzzle
    int LetterCount = 0; ///< characters in WordsArray, spaces included
    int LongestWord = 0; ///< 0..20 characters, as stored

    int CurrentWord = 0; ///< 1..40, the word being placed
    int WordLength = 0;  ///< characters of CurrentWord as entered, not cut at 20
    int Direction = 0;   ///< 1..8, an index of Directions
    int CurrentRow = 0;  ///< the cell for the next letter, 1..PuzzleSize
    int CurrentColumn = 0;
    bool WordFits = true; ///< result of the last TestWordForFit

    int PseudoWord = 0; ///< 1..40, the word that PseudoLoadPuzzleArray tries
    int PseudoRow = 0;  ///< its cursor
    int PseudoColumn = 0;
    int PseudoLetter = 0;
    bool PseudoFits = false; ///< its result

    int WordIndex = 0;   ///< 1..40, the word slot being placed
    int LetterIndex = 0; ///< 1..20, the letter slot being written; 21 after a word of 20

    // The words and the grid (workspace.cpp).

    /// Stores the words: letters as capitals, other characters as Blank. Drops characters after the 20th of a word
    /// and words after the 40th; use ObstacleToPuzzle to reject such lists first.
    void LoadWordsArray(std::span<const std::u16string> words);
    void ClearWordsArray() { WordsArray.Clear(); }
    /// Empties the cells 1..PuzzleSize only.
    void ClearPuzzleArray() { PuzzleArray.Clear(PuzzleSize, PuzzleSize); }
    /// Sets WordLength to the length of CurrentWord, 0 when the list has no such word.
    void DetermineWordLength() { WordLength = EntryLengths.at(static_cast<std::size_t>(CurrentWord)); }
    /// Sets PuzzleSize to the smallest of 10..30 with 1.75 cells per character, or to 30. When that is not more than
    /// LongestWord, it becomes LongestWord + 2.
    void SetPuzzleSize();
    /// Puts a random capital into every empty cell, row by row.
    void FillPuzzle();
    /// Empties both arrays and sets the cursor to 0. Keeps PuzzleSize and the counts.
    void Reset();

    // The placement search (placement_search.cpp).

    /// Draws directions and start cells until CurrentWord fits the grid.
    void InsertionPointAndDirection();
    void RandomDirectionSelector();
    void RandomStartingPoint();
    /// Sets WordFits: whether WordLength letters from the cursor in Direction stay inside the grid, with one
    /// cell to spare.
    void TestWordForFit();
    void CurrentDirection();
    void PseudoCurrentDirection();
    /// Sets PseudoFits: whether PseudoWord, from the pseudo cursor in Direction, shares at most one cell with the
    /// letters in the grid, and only a cell with the same letter. Writes no cell.
    void PseudoLoadPuzzleArray();

    // The passes over all words (passes.cpp).

    /// Turns the loaded words into a finished grid: sets its size, places every word and fills the rest. After six
    /// failed passes it enlarges the grid by one; after six at 30 x 30 it uses the dense arrangement.
    void LoadPuzzleArray();

    // The dense arrangement (dense_arrangement.cpp).

    /// Places the words in a grid of 30 x 30, longest first, each at a random legal placement. Uses the lanes if
    /// every pass fails.
    void ArrangeDensely();
    /// Places any list within the limits in a grid of 30 x 30; never fails. Up to 30 words lie side by side in a band
    /// of rows, the other ten at right angles to them beside the band.
    void ArrangeInLanes();

private:
    class OccupiedLines;

    /// Calls visit(letter) for each letter of the word, and move() between letters. Skips Blank. Stops when visit
    /// returns false or at the first empty slot. Returns the slot: MaxWordLength + 1 if no slot is empty.
    template <class Move, class Visit>
    int WalkWord(int word, Move move, Visit visit) const
    {
        bool first = true;
        int slot = 1;
        for (; slot <= wordlist::MaxWordLength && WordsArray(word, slot) != Empty; ++slot) {
            const char letter = WordsArray(word, slot);
            if (letter == Blank)
                continue;
            if (!std::exchange(first, false))
                move();
            if (!visit(letter))
                break;
        }
        return slot;
    }
    std::pair<int, int> Starts(int step) const;
    bool PlaceAllWords();
    bool PlaceWord(int& missCount);
    void WriteWord();
    void TakeWord(int word);
    bool PlaceAnywhere(int word, OccupiedLines& lines);
    void PlaceInLane(int word, int lane, int bandStart, bool turned);

    std::array<int, wordlist::MaxWords + 1> EntryLengths{};
};

} // namespace generator
