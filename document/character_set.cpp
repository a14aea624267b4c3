#include "document/character_set.h"

#include <string_view>

namespace document {

namespace {

// Bytes 0x80 to 0x9F, from the Unicode Consortium's table CP1252.TXT. All other bytes are Latin-1.
constexpr std::u16string_view MiddleCharacters = u"\u20AC\x81\u201A\u0192\u201E\u2026\u2020\u2021"
                                                 u"\u02C6\u2030\u0160\u2039\u0152\x8D\u017D\x8F"
                                                 u"\x90\u2018\u2019\u201C\u201D\u2022\u2013\u2014"
                                                 u"\u02DC\u2122\u0161\u203A\u0153\x9D\u017E\u0178";
constexpr char16_t MiddleStart = 0x80;
constexpr char16_t MiddleEnd = 0xA0;
static_assert(MiddleCharacters.size() == MiddleEnd - MiddleStart);

} // namespace

char16_t DecodeCharacter(char byte)
{
    const char16_t code = static_cast<unsigned char>(byte);
    return code >= MiddleStart && code < MiddleEnd ? MiddleCharacters[code - MiddleStart] : code;
}

std::optional<char> EncodeCharacter(char16_t character)
{
    const auto middle = MiddleCharacters.find(character);
    if (middle != std::u16string_view::npos)
        return static_cast<char>(MiddleStart + middle);
    const bool latin1 = character < MiddleStart || (character >= MiddleEnd && character <= 0xFF);
    return latin1 ? std::optional(static_cast<char>(character)) : std::nullopt;
}

bool TakesInTitle(char16_t character, bool /*boxIsEmpty*/)
{
    const bool control = character < u' ' || (character >= 0x7F && character < MiddleEnd);
    return !control && EncodeCharacter(character);
}

} // namespace document
