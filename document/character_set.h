#pragma once

#include <optional>

namespace document {

// Puzzle files use Windows-1252, one byte per character. The five bytes that it leaves undefined stand for the
// control characters with the same number, so that every byte survives a round trip.

char16_t DecodeCharacter(char byte);

/// Returns the byte for `character`, or std::nullopt when the character set lacks it.
std::optional<char> EncodeCharacter(char16_t character);

inline constexpr int MaxTitleLength = 30; ///< characters of a title that the user can type

/// The rule of the title box: printable characters that a puzzle file can hold.
bool TakesInTitle(char16_t character, bool boxIsEmpty);

} // namespace document
