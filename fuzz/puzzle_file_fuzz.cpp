#include "document/puzzle_file.h"

#include <cstdint>
#include <cstdlib>
#include <string>

/// The program can open any bytes, and a file that it saves reads back the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto file = document::ReadPuzzle(std::string(data, data + size));
    if (file.words.size() > document::MaxWordsRead)
        std::abort();
    const auto second = document::ReadPuzzle(document::WritePuzzle(file.title.value_or(u""), file.words));
    if (file.title && file.title->find(u'"') == std::u16string::npos && second.title != file.title)
        std::abort();
    return 0;
}
