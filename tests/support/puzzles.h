#pragma once

#include "generator/workspace.h"
#include "tests/support/puzzle_finder.h"
#include "wordlist/letters.h"

#include <algorithm>
#include <string>
#include <vector>

using Words = std::vector<std::u16string>;

/// A random source with a stopped clock. It gives the same puzzle on every platform.
inline generator::RandomSource FixedRandom(std::uint64_t reading)
{
    return generator::RandomSource([reading] { return reading; });
}

inline std::vector<std::string> GridRows(const generator::PuzzleWorkspace& workspace)
{
    std::vector<std::string> rows;
    for (int row = 1; row <= workspace.PuzzleSize; ++row) {
        rows.emplace_back();
        for (int column = 1; column <= workspace.PuzzleSize; ++column)
            rows.back() += workspace.PuzzleArray(row, column);
    }
    return rows;
}

/// The words are spelt as in the grid, where only letters take cells.
inline SolvedPuzzle Solved(const generator::PuzzleWorkspace& workspace, const Words& words)
{
    SolvedPuzzle puzzle{GridRows(workspace), {}};
    for (const auto& word : words) {
        auto& spelt = puzzle.words.emplace_back();
        for (const char16_t character : word)
            spelt += wordlist::GridLetter(character).value_or(generator::Blank);
    }
    return puzzle;
}

/// `count` words of `length` letters, each drawn from the first `letters` of the alphabet.
inline Words RandomWords(generator::RandomSource& random, int count, int length, int letters = 26)
{
    Words words(static_cast<std::size_t>(count));
    for (auto& word : words)
        for (int i = 0; i < length; ++i)
            word += static_cast<char16_t>('A' + random.DrawBelow(letters));
    return words;
}

/// A list of one of the difficult kinds: any lengths, blanks inside and at the end, equal words, one repeated letter,
/// palindromes, few letters, entries with blanks only, empty.
inline Words AnyList(generator::RandomSource& random)
{
    const int shape = random.DrawBelow(8);
    const int letters = shape == 3 ? 1 : shape == 5 ? 3 : 26;
    const int most = shape == 3 ? 10 : 40; // the finder cannot solve more words of one letter
    Words words;
    for (int count = shape == 7 ? random.DrawBelow(2) : 1 + random.DrawBelow(most); count > 0; --count) {
        const int length = 1 + random.DrawBelow(shape == 0 ? 20 : 12);
        auto& word = words.emplace_back(RandomWords(random, 1, length, letters).front());
        if (shape == 1)
            word.insert(1 + static_cast<std::size_t>(random.DrawBelow(static_cast<int>(word.size()))), 1, u' ');
        if (shape == 2)
            word = words.front();
        if (shape == 6 && random.DrawBelow(4) == 0)
            word.assign(word.size(), u' ');
        if (shape == 4) {
            word.resize(std::min<std::size_t>(word.size(), 10));
            word += std::u16string(word.rbegin(), word.rend());
        }
    }
    return words;
}
