#include "wordlist/order.h"

#include "wordlist/letters.h"

#include <algorithm>

namespace wordlist {

namespace {

char16_t AlphabetKey(char16_t character)
{
    const auto letter = GridLetter(character);
    return letter ? static_cast<char16_t>(*letter) : character;
}

} // namespace

std::size_t InsertPosition(std::span<const std::u16string> words, std::u16string_view word)
{
    const auto standsBefore = [](std::u16string_view left, std::u16string_view right) {
        return std::ranges::lexicographical_compare(left, right, {}, AlphabetKey, AlphabetKey);
    };
    return static_cast<std::size_t>(std::ranges::upper_bound(words, word, standsBefore) - words.begin());
}

} // namespace wordlist
