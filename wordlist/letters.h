#pragma once

#include <optional>

namespace wordlist {

/// Returns the capital A to Z that stands for `character` in a grid. Letters become capitals and lose their accents
/// (É becomes E); Æ, Œ, ß and Þ become A, O, S and T. Returns std::nullopt for a character that is not a letter of
/// Windows-1252: it takes no cell.
std::optional<char> GridLetter(char16_t character);

} // namespace wordlist
