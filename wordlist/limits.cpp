#include "wordlist/limits.h"

#include "wordlist/letters.h"

#include <algorithm>

namespace wordlist {

namespace {

bool LacksLetter(const std::u16string& word)
{
    return std::ranges::none_of(word, [](auto character) { return GridLetter(character).has_value(); }) &&
           word.find_first_not_of(u' ') != std::u16string::npos;
}

} // namespace

std::optional<Obstacle> ObstacleToPuzzle(std::span<const std::u16string> words)
{
    const auto surplus = words.subspan(std::min<std::size_t>(words.size(), MaxWords));
    Obstacle found{{surplus.begin(), surplus.end()}, {}, {}};
    std::ranges::copy_if(words, std::back_inserter(found.tooLong),
                         [](const auto& word) { return word.size() > MaxWordLength; });
    std::ranges::copy_if(words, std::back_inserter(found.letterless), LacksLetter);
    const bool none = found.surplus.empty() && found.tooLong.empty() && found.letterless.empty();
    return none ? std::nullopt : std::optional(std::move(found));
}

} // namespace wordlist
