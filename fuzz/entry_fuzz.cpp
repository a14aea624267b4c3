#include "document/character_set.h"
#include "wordlist/entry.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>

/// Whatever a box showed and whatever the user did to it, the change stays inside and the limit holds for what
/// was put in.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 2)
        return 0;
    const std::u16string text(data + 2, data + size);
    const std::size_t split = data[0] % (text.size() + 1);
    const std::u16string before = text.substr(0, split);
    const std::u16string after = text.substr(split);
    for (const auto filter : {wordlist::FilterWord, document::FilterTitle}) {
        const auto change = wordlist::AdmitEdit(before, {after, data[1] % 2 == 0}, {filter, 20});
        if (!change)
            continue;
        std::u16string edited = before;
        edited.replace(change->position, change->removed, change->inserted);
        if (change->position + change->removed > before.size() ||
            edited.size() > std::max<std::size_t>(20, before.size()))
            std::abort();
    }
    return 0;
}
