#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace wordlist {

/// Returns the index 0..words.size() at which a binary search inserts `word` in alphabetical order, after equal
/// entries. The order ignores letter case and accents, and a space comes before every letter. If `words` is not in
/// order, the index is valid but the place is arbitrary.
std::size_t InsertPosition(std::span<const std::u16string> words, std::u16string_view word);

} // namespace wordlist
