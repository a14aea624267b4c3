#pragma once

#include <optional>
#include <span>
#include <string>

namespace wordlist {

inline constexpr int MaxWords = 40;       ///< entries of a list that can become a puzzle
inline constexpr int MaxWordLength = 20;  ///< characters of an entry, blanks included
inline constexpr int MaxTitleLength = 30; ///< characters of a title that can be typed

/// What keeps `words` from becoming a puzzle, as a text for the user that names the words and says what to
/// shorten or remove; nothing when the list is within the limits: at most MaxWords entries, each of at most
/// MaxWordLength characters and with at least one letter, or of blanks alone: such an entry hides nothing and hinders
/// nothing. Typing breaks no limit, but a file can.
std::optional<std::u16string> ObstacleToPuzzle(std::span<const std::u16string> words);

} // namespace wordlist
