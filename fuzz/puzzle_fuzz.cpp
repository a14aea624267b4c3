#include "document/character_set.h"
#include "tests/support/puzzles.h"
#include "view/printed_page.h"
#include "wordlist/letters.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace {

void Require(bool condition)
{
    if (!condition)
        std::abort();
}

/// A printer that looks at what it is given.
class Looker : public view::PagePrinter {
public:
    std::size_t Texts = 0;

    std::optional<double> PageWidth() override { return 11900; }
    std::optional<double> SetFont(const view::PageFont& font) override { return font.size; }
    std::optional<double> Measure(std::u16string_view text) override
    {
        return 130.0 * static_cast<double>(text.size());
    }
    bool Write(view::PagePoint at, std::u16string_view /*text*/) override
    {
        ++Texts;
        Require(std::isfinite(at.x) && at.y >= 720 && at.y < 14'400);
        return true;
    }
    bool DrawLine(view::PagePoint /*from*/, view::PagePoint /*to*/) override { return true; }
    bool EndDocument() override { return true; }
};

} // namespace

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
    Require(fault.empty() || fault.starts_with("undecided")); // lists of one letter puzzle the finder
    Looker printer;
    Require(view::PrintPage(printer, u"Title", words, workspace));
    Require(printer.Texts ==
            1 + words.size() + static_cast<std::size_t>(workspace.PuzzleSize * workspace.PuzzleSize));
    return 0;
}
