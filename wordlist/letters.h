#pragma once

#include <optional>

namespace wordlist {

/// The capital A to Z that stands for `character` in a puzzle's grid: letters are upper-cased and lose their
/// accents (É is hidden as E; the ligatures and ß, Ø, Ð, Þ by their first letter). Nothing for a character
/// that is no letter of Windows-1252: it takes no cell.
std::optional<char> GridLetter(char16_t character);

} // namespace wordlist
