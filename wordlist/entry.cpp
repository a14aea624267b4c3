#include "wordlist/entry.h"

#include <algorithm>

namespace wordlist {

namespace {

bool IsWordCharacter(char16_t character)
{
    return (character >= u'A' && character <= u'Z') || (character >= u'a' && character <= u'z') || character == u' ';
}

bool IsLineEndOrTab(char16_t character)
{
    return character == u'\n' || character == u'\r' || character == u'\t' || character == u'\u2028';
}

} // namespace

std::u16string FilterWord(std::u16string_view inserted, bool atFront)
{
    std::u16string word;
    for (const char16_t character : inserted)
        if (IsWordCharacter(character) && !(character == u' ' && atFront && word.empty()))
            word += character;
    return word;
}

std::optional<Change> AdmitEdit(std::u16string_view before, const Edit& wanted, const EntryRule& rule)
{
    const std::u16string_view after = wanted.text;
    const auto shorter = std::min(before.size(), after.size());
    const auto changed = std::ranges::mismatch(before, after).in2;
    const auto front = static_cast<std::size_t>(changed - after.begin());
    std::size_t back = 0;
    while (back < shorter - front && before[before.size() - 1 - back] == after[after.size() - 1 - back])
        ++back;

    std::u16string inserted(after.substr(front, after.size() - front - back));
    std::ranges::replace_if(inserted, IsLineEndOrTab, u' ');
    const std::size_t kept = front + back;
    // A typed blank is judged by the box as it stood, before what was selected made room.
    const bool atFront = wanted.typed ? before.empty() : front == 0;
    std::u16string admitted = rule.filter(inserted, atFront);
    admitted.resize(std::min(admitted.size(), rule.limit - std::min(rule.limit, kept)));
    if (admitted.empty() && !inserted.empty())
        return std::nullopt;
    return Change{front, before.size() - kept, admitted};
}

} // namespace wordlist
