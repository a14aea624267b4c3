#include "document/character_set.h"
#include "tests/support/puzzles.h"
#include "view/printed_page.h"
#include "wordlist/letters.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>

/// Any bytes as a list of words, one a line: what passes the check of the limits becomes a puzzle that keeps every
/// rule, and a page. The first two bytes are the clock.
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
    Words spelt = words; // as the grid does: what is no letter takes no cell
    for (auto& word : spelt)
        for (char16_t& character : word)
            character = static_cast<unsigned char>(wordlist::GridLetter(character).value_or(generator::Blank));
    const std::string fault = FaultOf(Solved(workspace, spelt));
    const view::PageMetrics printer{11906, [](const view::PageFont& font) { return font.size; },
                                    [](const auto& font, auto text) { return font.size * 10 * double(text.size()); }};
    const view::Page page = view::LayOutPage(printer, u"Title", words, workspace);
    bool whole = fault.empty() || fault.starts_with("undecided"); // lists of one letter puzzle the finder
    whole = whole && page.texts.size() ==
                         1 + words.size() + static_cast<std::size_t>(workspace.PuzzleSize * workspace.PuzzleSize);
    for (const auto& text : page.texts)
        whole = whole && std::isfinite(text.x) && text.y >= 720 && text.y < 14'400;
    if (!whole)
        std::abort();
    return 0;
}
