#include "wordlist/limits.h"

#include "wordlist/letters.h"

#include <algorithm>
#include <vector>

namespace wordlist {

namespace {

// The message must fit a screen even when a file holds a hundred very long words.
constexpr std::size_t NamedCharacters = 40;
constexpr std::size_t NamedWords = 15;

std::u16string Number(std::size_t number)
{
    const std::string digits = std::to_string(number);
    return {digits.begin(), digits.end()};
}

std::u16string Named(const std::u16string& word)
{
    std::u16string name = word.substr(0, NamedCharacters);
    std::ranges::replace_if(
        name, [](char16_t character) { return character < u' '; }, u' ');
    return u'"' + name + (word.size() > NamedCharacters ? u"…\"" : u"\"");
}

bool LacksLetter(const std::u16string& word)
{
    return std::ranges::none_of(word, [](auto character) { return GridLetter(character).has_value(); }) &&
           word.find_first_not_of(u' ') != std::u16string::npos;
}

/// One paragraph of the message: what to do, then the words it applies to. Empty when there are no such words.
std::u16string Demand(const std::u16string& demand, std::span<const std::u16string> words)
{
    if (words.empty())
        return {};
    std::u16string text = u"\n\n" + demand + u"\n";
    for (const std::u16string& word : words.first(std::min(words.size(), NamedWords)))
        text += (&word == words.data() ? u"" : u", ") + Named(word);
    if (words.size() > NamedWords)
        text += u" and " + Number(words.size() - NamedWords) + u" more";
    return text;
}

std::vector<std::u16string> Select(std::span<const std::u16string> words, bool (*condition)(const std::u16string&))
{
    std::vector<std::u16string> selected;
    std::ranges::copy_if(words, std::back_inserter(selected), condition);
    return selected;
}

} // namespace

std::optional<std::u16string> ObstacleToPuzzle(std::span<const std::u16string> words)
{
    const auto surplus = words.subspan(std::min<std::size_t>(words.size(), MaxWords));
    const std::u16string demands =
        Demand(u"It holds " + Number(words.size()) + u" words, and a puzzle has room for " + Number(MaxWords) +
                   u". Please remove " + Number(surplus.size()) + u"; these stand after the last that fits:",
               surplus) +
        Demand(u"Please shorten to " + Number(MaxWordLength) + u" characters:",
               Select(words, [](const auto& word) { return word.size() > MaxWordLength; })) +
        Demand(u"Please remove, or give a letter to hide:", Select(words, LacksLetter));
    if (demands.empty())
        return std::nullopt;
    return u"This word list cannot become a puzzle yet." + demands;
}

} // namespace wordlist
