#include "wordlist/text_rule.h"

#include <algorithm>

namespace wordlist {

bool TakesInWord(char16_t character, bool boxIsEmpty)
{
    return (character >= u'A' && character <= u'Z') || (character >= u'a' && character <= u'z') ||
           (character == u' ' && !boxIsEmpty);
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
