#include "wordlist/letters.h"

#include <string_view>

namespace wordlist {

namespace {

// U+00C0 to U+00FF; the spaces stand for the multiplication and division signs.
constexpr std::string_view Latin1Letters = "AAAAAAACEEEEIIII"
                                           "DNOOOOO OUUUUYTS"
                                           "AAAAAAACEEEEIIII"
                                           "DNOOOOO OUUUUYTY";
static_assert(Latin1Letters.size() == 0x100 - 0xC0);

// The letters of Windows-1252 outside Latin-1.
constexpr std::u16string_view OtherCharacters = u"\u0152\u0153\u0160\u0161\u0178\u017D\u017E\u0192";
constexpr std::string_view OtherLetters = "OOSSYZZF";
static_assert(OtherLetters.size() == OtherCharacters.size());

} // namespace

std::optional<char> GridLetter(char16_t character)
{
    if (character >= u'A' && character <= u'Z')
        return static_cast<char>(character);
    if (character >= u'a' && character <= u'z')
        return static_cast<char>(character - u'a' + u'A');
    if (character >= 0xC0 && character <= 0xFF) {
        const char letter = Latin1Letters[character - 0xC0U];
        return letter == ' ' ? std::nullopt : std::optional(letter);
    }
    const auto other = OtherCharacters.find(character);
    return other == std::u16string_view::npos ? std::nullopt : std::optional(OtherLetters[other]);
}

} // namespace wordlist
