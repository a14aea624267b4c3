#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace wordlist {

/// Which characters a text box takes from the user, and how many.
struct TextRule {
    bool (*takes)(char16_t character, bool boxIsEmpty);
    std::size_t limit; ///< characters the user can fill the box to; a longer text set by the program stays
};

/// The word box: A to Z, a to z and spaces, but no space at the start.
bool TakesInWord(char16_t character, bool boxIsEmpty);

/// What of `text` enters a box that shows `shown` characters, of which `selected` are selected: what typing its
/// characters one after the other would give, line ends and tabs as spaces. It takes the place of what is selected,
/// unless it is empty: then nothing changes.
std::u16string Admit(std::u16string_view text, std::size_t shown, std::size_t selected, const TextRule& rule);

} // namespace wordlist
