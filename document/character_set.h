#pragma once

#include <optional>

namespace document {

// The character set of puzzle files: Windows-1252, one byte a character. The five bytes that it leaves
// undefined stand for the control characters of the same number, so that every byte survives a round trip.

char16_t DecodeCharacter(char byte);

/// The byte of `character`, or nothing when the character set lacks it.
std::optional<char> EncodeCharacter(char16_t character);

/// The title box: printable characters that a puzzle file can hold.
bool TakesInTitle(char16_t character, bool boxIsEmpty);

} // namespace document
