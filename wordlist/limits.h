#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace wordlist {

inline constexpr int MaxWords = 40;      ///< entries of a list that can become a puzzle
inline constexpr int MaxWordLength = 20; ///< characters of an entry, spaces included

/// What keeps a list from becoming a puzzle, in its order. Typing cannot cause it, but a file can.
struct Obstacle {
    std::vector<std::u16string> surplus;    ///< the words after the first MaxWords
    std::vector<std::u16string> tooLong;    ///< the words of more than MaxWordLength characters
    std::vector<std::u16string> letterless; ///< the words without a letter to hide; not those of spaces alone
};

/// Returns std::nullopt when the list can become a puzzle.
std::optional<Obstacle> ObstacleToPuzzle(std::span<const std::u16string> words);

} // namespace wordlist
