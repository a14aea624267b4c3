#include "wordlist/entry.h"

#include <algorithm>

namespace wordlist {

namespace {

bool IsWordCharacter(char16_t character)
{
    return (character >= u'A' && character <= u'Z') || (character >= u'a' && character <= u'z') || character == u' ';
}

} // namespace

std::u16string FilterWord(std::u16string_view inserted, bool boxEmpty)
{
    std::u16string word;
    for (const char16_t character : inserted)
        if (IsWordCharacter(character) && !(character == u' ' && boxEmpty && word.empty()))
            word += character;
    return word;
}

Edit AdmitEdit(std::u16string_view before, const Edit& wanted, const EntryRule& rule)
{
    const std::u16string_view after = wanted.text;
    const auto shorter = std::min(before.size(), after.size());
    const auto changed = std::ranges::mismatch(before, after).in2;
    const auto front = static_cast<std::size_t>(changed - after.begin());
    std::size_t back = 0;
    while (back < shorter - front && before[before.size() - 1 - back] == after[after.size() - 1 - back])
        ++back;

    const std::u16string_view inserted = after.substr(front, after.size() - front - back);
    const std::size_t kept = front + back;
    // A typed blank is judged by the box as it stood; a longer text that replaces all of it starts a new
    // word.
    const bool boxEmpty = before.empty() || (kept == 0 && inserted.size() > 1);
    std::u16string admitted = rule.filter(inserted, boxEmpty);
    admitted.resize(std::min(admitted.size(), rule.limit - std::min(rule.limit, kept)));

    Edit edit{std::u16string(after.substr(0, front)) + admitted + std::u16string(after.substr(after.size() - back)),
              0};
    const std::size_t behindCursor = std::min(after.size() - std::min(wanted.cursor, after.size()), edit.text.size());
    edit.cursor = edit.text.size() - behindCursor;
    return edit;
}

} // namespace wordlist
