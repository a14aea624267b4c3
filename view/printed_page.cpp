#include "view/printed_page.h"

#include "view/twips.h"

#include <algorithm>
#include <cmath>

namespace view {

namespace {

constexpr double TitleTop = 720;
constexpr double WordsLeft = 720;
constexpr double WordsTop = 1800;
constexpr std::size_t WordsPerColumn = 10;
constexpr double ColumnGap = 1080;
constexpr double BoxMargin = 504;
constexpr double BoxTop = 1584;
constexpr double BoxLines = 11; ///< ten lines of words and one more
constexpr double GridGap = 288; ///< from the lines of the box to the grid
constexpr double GridWidth = 8640;
constexpr double MaxGridFontSize = 14;

/// Each column starts to the right of the widest word of the column before it.
void LayOutWords(Page& page, const PageMetrics& printer, const PageFont& font, double lineStep,
                 std::span<const std::u16string> words)
{
    double x = WordsLeft;
    double widest = 0;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::size_t line = i % WordsPerColumn;
        if (line == 0 && i > 0) {
            x += widest + ColumnGap;
            widest = 0;
        }
        page.texts.push_back({font, x, WordsTop + static_cast<double>(line) * lineStep, words[i]});
        widest = std::max(widest, std::nearbyint(printer.textWidth(font, words[i])));
    }
}

/// The font is half as high as a cell. Where that exceeds MaxGridFontSize, the cells shrink to match the font.
void LayOutLetters(Page& page, const PageMetrics& printer, double lineStep,
                   const generator::PuzzleWorkspace& workspace)
{
    const int size = workspace.PuzzleSize;
    double step = std::nearbyint(GridWidth / size);
    PageFont font{u"Courier New", static_cast<float>(step / 2 / TwipsPerPoint)};
    if (printer.size(font) > MaxGridFontSize) {
        font.size = MaxGridFontSize;
        step = std::nearbyint(printer.size(font) * 2 * TwipsPerPoint);
    }
    const double left = std::nearbyint((printer.width - size * step) / 2);
    const double oneRowAbove = std::nearbyint(BoxLines * lineStep + WordsTop + GridGap - step);
    for (int row = 1; row <= size; ++row)
        for (int column = 1; column <= size; ++column) {
            const char16_t letter = static_cast<unsigned char>(workspace.PuzzleArray(row, column));
            page.texts.push_back({font, left + (column - 1) * step, oneRowAbove + row * step, {letter}});
        }
}

} // namespace

// std::nearbyint rounds ties to even: that is the default rounding mode, and nothing here changes it.
Page LayOutPage(const PageMetrics& printer, std::u16string_view title, std::span<const std::u16string> words,
                const generator::PuzzleWorkspace& workspace)
{
    const PageFont titleFont{u"Times New Roman", 26, true, true};
    const double titleLeft = printer.width / 2 - printer.textWidth(titleFont, title) / 2;
    const PageFont wordFont{u"Times New Roman", 11};
    const double lineStep = std::nearbyint(printer.size(wordFont) * 1.5 * TwipsPerPoint);
    Page page{{{titleFont, titleLeft, TitleTop, std::u16string(title)}},
              {BoxMargin, BoxTop, printer.width - BoxMargin, BoxTop + BoxLines * lineStep + 0.3}};
    LayOutWords(page, printer, wordFont, lineStep, words);
    LayOutLetters(page, printer, lineStep, workspace);
    return page;
}

double ScaleForSheet(double width, double height)
{
    // The width of A4 and the height of Letter, less what drivers round off.
    constexpr double MadeForWidth = 11880;
    constexpr double MadeForHeight = 15820;
    return std::min({1.0, width / MadeForWidth, height / MadeForHeight});
}

} // namespace view
