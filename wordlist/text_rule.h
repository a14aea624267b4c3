#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace wordlist {

/// Which characters the user may enter in a text box, and how many.
struct TextRule {
    bool (*takes)(char16_t character, bool boxIsEmpty);
    std::size_t limit; ///< characters; a longer text that the program sets is kept
};

/// Splits a list of words at line ends, tabs, commas and semicolons. Each word has only the characters that the word
/// box takes, and no spaces around it. Empty words are left out, but the first stays: it joins what is in the box.
/// Returns a text that is no list as it stands.
std::vector<std::u16string> WordsOfList(std::u16string_view text);

/// The rule of the word box: A to Z, a to z and spaces, but no space in an empty box.
bool TakesInWord(char16_t character, bool boxIsEmpty);

/// Returns the part of `text` that a box accepts when it shows `shown` characters, `selected` of them selected: the
/// same as typing the characters one by one. Line ends and tabs count as spaces. The result replaces the selection;
/// an empty result changes nothing.
std::u16string Admit(std::u16string_view text, std::size_t shown, std::size_t selected, const TextRule& rule);

} // namespace wordlist
