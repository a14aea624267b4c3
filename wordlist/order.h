#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace wordlist {

/// Whether `left` stands before `right` in the alphabet, letter case and accents ignored; a blank stands
/// before every letter.
bool StandsBefore(std::u16string_view left, std::u16string_view right);

/// The position 0..words.size() at which a binary search inserts `word`: its alphabetical place, after
/// entries that compare equal, when `words` is in order; some position within the list when it is not.
std::size_t InsertPosition(std::span<const std::u16string> words, std::u16string_view word);

} // namespace wordlist
