#pragma once

#include <optional>
#include <span>
#include <string>

namespace wordlist {

inline constexpr int MaxWords = 40;       ///< entries of a list that can become a puzzle
inline constexpr int MaxWordLength = 20;  ///< characters of an entry, spaces included
inline constexpr int MaxTitleLength = 30; ///< characters of a title that the user can type

/// Checks a list against the limits: at most MaxWords entries, each of at most MaxWordLength characters. An entry
/// needs at least one letter, unless it is empty or all spaces: such an entry hides nothing. Returns std::nullopt
/// when the list can become a puzzle, and otherwise a message that names the words to shorten or remove. Typing
/// cannot break a limit, but a file can.
std::optional<std::u16string> ObstacleToPuzzle(std::span<const std::u16string> words);

} // namespace wordlist
