#include "wordlist/text_rule.h"

#include <algorithm>

namespace wordlist {

bool TakesInWord(char16_t character, bool boxIsEmpty)
{
    return (character >= u'A' && character <= u'Z') || (character >= u'a' && character <= u'z') ||
           (character == u' ' && !boxIsEmpty);
}

std::vector<std::u16string> WordsOfList(std::u16string_view text)
{
    constexpr std::u16string_view Separators = u"\n\r\t\v\f\u0085\u2028\u2029,;";
    std::size_t end = text.find_first_of(Separators);
    if (end == std::u16string_view::npos)
        return {std::u16string(text)};
    std::vector<std::u16string> words;
    for (std::size_t start = 0; start <= text.size(); start = end + 1) {
        end = std::min(text.find_first_of(Separators, start), text.size());
        std::u16string word;
        for (const char16_t character : text.substr(start, end - start))
            if (TakesInWord(character, word.empty()))
                word += character;
        word.erase(word.find_last_not_of(u' ') + 1);
        if (words.empty() || !word.empty())
            words.push_back(word);
    }
    return words;
}

std::u16string Admit(std::u16string_view text, std::size_t shown, std::size_t selected, const TextRule& rule)
{
    constexpr std::u16string_view Spaces = u"\n\r\t\u2028\u2029";
    const std::size_t room = rule.limit - std::min(rule.limit, shown - selected);
    std::u16string admitted;
    for (const char16_t character : text) {
        const char16_t typed = Spaces.find(character) == std::u16string_view::npos ? character : u' ';
        if (admitted.size() < room && rule.takes(typed, shown == 0 && admitted.empty()))
            admitted += typed;
    }
    return admitted;
}

} // namespace wordlist
