#include "generator/workspace.h"

#include "wordlist/letters.h"

#include <algorithm>

namespace generator {

void PuzzleWorkspace::LoadWordsArray(std::span<const std::u16string> words)
{
    LetterCount = LongestWord = 0;
    EntryLengths.fill(0);
    int word = 0;
    for (const std::u16string& entry : words.first(std::min<std::size_t>(words.size(), wordlist::MaxWords))) {
        EntryLengths.at(static_cast<std::size_t>(++word)) = static_cast<int>(entry.size());
        int slot = 0;
        for (const char16_t character : entry.substr(0, wordlist::MaxWordLength))
            WordsArray(word, ++slot) = wordlist::GridLetter(character).value_or(Blank);
        LongestWord = std::max(LongestWord, slot);
        LetterCount += slot;
    }
}

void PuzzleWorkspace::SetPuzzleSize()
{
    const int cells = (7 * LetterCount + 2) / 4; // 1.75 cells per letter, rounded
    PuzzleSize = MinPuzzleSize;
    while (PuzzleSize < MaxPuzzleSize && PuzzleSize * PuzzleSize < cells)
        ++PuzzleSize;
    if (PuzzleSize <= LongestWord)
        PuzzleSize = LongestWord + 2; // the bounds rule needs a grid larger than the word
}

void PuzzleWorkspace::FillPuzzle()
{
    for (int row = 1; row <= PuzzleSize; ++row)
        for (int column = 1; column <= PuzzleSize; ++column)
            if (PuzzleArray(row, column) == Empty)
                PuzzleArray(row, column) = static_cast<char>('A' + Random.DrawBelow(26));
}

void PuzzleWorkspace::Reset()
{
    CurrentWord = CurrentRow = CurrentColumn = WordLength = Direction = 0;
    WordFits = true;
    ClearWordsArray();
    ClearPuzzleArray();
}

} // namespace generator
