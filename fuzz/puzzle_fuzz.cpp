#include "document/character_set.h"
#include "tests/support/puzzles.h"
#include "view/printed_page.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>

/// The first two bytes are the clock, the others are words, one on each line. A list within the limits must give a
/// correct puzzle and page.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 2)
        return 0;
    Words words(1);
    for (const std::uint8_t byte : std::span(data, size).subspan(2))
        if (byte == '\n')
            words.emplace_back();
        else
            words.back() += document::DecodeCharacter(static_cast<char>(byte));
    std::erase(words, std::u16string());
    if (wordlist::ObstacleToPuzzle(words))
        return 0;

    generator::PuzzleWorkspace workspace(FixedRandom(static_cast<std::uint64_t>(data[0]) << 8U | data[1]));
    workspace.LoadWordsArray(words);
    workspace.LoadPuzzleArray();
    const std::string fault = FaultOf(Solved(workspace, words));
    const view::PageMetrics printer{11906, [](const view::PageFont& font) { return font.size; },
                                    [](const auto& font, auto text) { return font.size * 10 * double(text.size()); }};
    const view::Page page = view::LayOutPage(printer, u"Title", words, workspace);
    bool whole = fault.empty() || fault.starts_with("undecided"); // for words of one letter
    for (const auto& text : page.texts)
        whole = whole && std::isfinite(text.x) && text.y >= 720 && text.y < 14'400;
    if (!whole)
        std::abort();
    return 0;
}
