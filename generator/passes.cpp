#include "generator/workspace.h"

namespace generator {

void PuzzleWorkspace::LoadPuzzleArray()
{
    constexpr int PassesPerSize = 6;
    SetPuzzleSize();
    for (int pass = 1; !PlaceAllWords(); ++pass) {
        ClearPuzzleArray();
        if (pass % PassesPerSize != 0)
            continue;
        if (PuzzleSize == MaxPuzzleSize) {
            ArrangeDensely();
            break;
        }
        ++PuzzleSize;
    }
    FillPuzzle();
}

/// Makes one pass over all word slots. The empty ones after the end of the list also cost an attempt each, but write
/// nothing. Returns false as soon as a word has missed too often.
bool PuzzleWorkspace::PlaceAllWords()
{
    int missCount = 0;
    for (WordIndex = 1; WordIndex <= wordlist::MaxWords; ++WordIndex)
        if (!PlaceWord(missCount))
            return false;
    return true;
}

/// Tries placements for one word until it meets no clash. After the last allowed miss it makes one more attempt but
/// does not use it. A word that fills all its slots does not reset the count of misses for the next word.
bool PuzzleWorkspace::PlaceWord(int& missCount)
{
    constexpr int MissesBeforeRestart = 50;
    for (;; ++missCount) {
        TakeWord(WordIndex);
        InsertionPointAndDirection();
        PseudoWord = CurrentWord;
        PseudoRow = CurrentRow;
        PseudoColumn = CurrentColumn;
        PseudoLoadPuzzleArray();
        if (missCount == MissesBeforeRestart)
            return false;
        if (PseudoFits)
            break;
    }
    WriteWord();
    if (LetterIndex <= wordlist::MaxWordLength)
        missCount = 0;
    return true;
}

void PuzzleWorkspace::TakeWord(int word)
{
    CurrentWord = word;
    DetermineWordLength();
}

void PuzzleWorkspace::WriteWord()
{
    const auto move = [this] { CurrentDirection(); };
    const auto write = [this](char letter) { return PuzzleArray(CurrentRow, CurrentColumn) = letter, true; };
    LetterIndex = WalkWord(CurrentWord, move, write);
}

} // namespace generator
