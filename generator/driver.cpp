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

/// One pass through all word slots, the empty ones beyond the end of the list included: they cost an attempt and
/// write nothing. False as soon as a word has missed too often.
bool PuzzleWorkspace::PlaceAllWords()
{
    int missCount = 0;
    for (WordIndex = 1; WordIndex <= wordlist::MaxWords; ++WordIndex)
        if (!PlaceWord(missCount))
            return false;
    return true;
}

/// Attempts at one word until a pseudo pass meets no clash. The attempt after the last allowed miss is made but not
/// used. A word that fills all its slots leaves the misses standing for the words after it.
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
    WalkWord(CurrentWord, LetterIndex, move, [this](char letter) {
        PuzzleArray(CurrentRow, CurrentColumn) = letter;
        return true;
    });
}

} // namespace generator
