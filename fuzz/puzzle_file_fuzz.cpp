#include "document/puzzle_file.h"

#include <cstdint>
#include <cstdlib>
#include <sstream>

/// Any bytes can be opened, and what was read can be written and read again to the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::istringstream in(std::string(data, data + size));
    const auto file = document::ReadPuzzle(in);
    if (file.words.size() > document::MaxRecords)
        std::abort();
    std::ostringstream out;
    document::WritePuzzle(out, file.title.value_or(u""), file.words);
    std::istringstream again(out.str());
    const auto second = document::ReadPuzzle(again);
    if (file.title && file.title->find(u'"') == std::u16string::npos && second.title != file.title)
        std::abort();
    return 0;
}
