#include "document/file_name.h"

#include <algorithm>

namespace document {

std::u16string FileNameFor(std::u16string_view title)
{
    constexpr std::u16string_view Forbidden = u"/\\:*?\"<>|";
    constexpr std::u16string_view Ends = u" .";
    constexpr std::size_t MaxLength = 60; // far below what any file system allows, in any encoding
    std::u16string name(title.substr(0, MaxLength));
    std::ranges::replace_if(
        name,
        [&](char16_t character) {
            return character < u' ' || Forbidden.find(character) != std::u16string_view::npos;
        },
        u'-');
    name.erase(0, name.find_first_not_of(Ends));
    name.erase(name.find_last_not_of(Ends) + 1);
    return name.empty() ? u"New Puzzle" : name;
}

} // namespace document
