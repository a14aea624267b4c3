#include "document/character_set.h"
#include "wordlist/entry.h"
#include "wordlist/limits.h"

#include <cstdint>
#include <cstdlib>

/// Whatever a box showed and whatever the user did to it, the cursor stays inside and the limit holds for
/// what was put in.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 2)
        return 0;
    const std::u16string text(data + 2, data + size);
    const std::size_t split = data[0] % (text.size() + 1);
    const std::u16string before = text.substr(0, split);
    const std::u16string after = text.substr(split);
    for (const auto filter : {wordlist::FilterWord, document::FilterTitle}) {
        const auto edit = wordlist::AdmitEdit(before, {after, data[1] % (after.size() + 1)}, {filter, 20});
        if (edit.cursor > edit.text.size() || edit.text.size() > std::max<std::size_t>(20, before.size()))
            std::abort();
    }
    return 0;
}
