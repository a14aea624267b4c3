#include "wordlist/letters.h"

#include <string_view>

namespace wordlist {

namespace {

// U+00C0 to U+00FF; the blanks are the multiplication and division signs.
constexpr std::string_view Latin1Letters = "AAAAAAACEEEEIIII"
                                           "DNOOOOO OUUUUYTS"
                                           "AAAAAAACEEEEIIII"
                                           "DNOOOOO OUUUUYTY";
static_assert(Latin1Letters.size() == 0x100 - 0xC0);

char LetterBeyondLatin1(char16_t character)
{
    switch (character) {
    case u'\u0152':
    case u'\u0153':
        return 'O';
    case u'\u0160':
    case u'\u0161':
        return 'S';
    case u'\u0178':
        return 'Y';
    case u'\u017D':
    case u'\u017E':
        return 'Z';
    case u'\u0192':
        return 'F';
    default:
        return ' ';
    }
}

} // namespace

std::optional<char> GridLetter(char16_t character)
{
    if (character >= u'A' && character <= u'Z')
        return static_cast<char>(character);
    if (character >= u'a' && character <= u'z')
        return static_cast<char>(character - u'a' + u'A');
    const char letter =
        character >= 0xC0 && character <= 0xFF ? Latin1Letters[character - 0xC0U] : LetterBeyondLatin1(character);
    return letter == ' ' ? std::nullopt : std::optional(letter);
}

} // namespace wordlist
