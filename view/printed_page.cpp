#include "view/printed_page.h"

#include "view/rounding.h"

#include <algorithm>
#include <array>

namespace view {

namespace {

constexpr double TwipsPerPoint = 20;
constexpr double TitleTop = 720;
constexpr double WordsLeft = 720;
constexpr double WordsTop = 1800;
constexpr std::size_t WordsPerColumn = 10;
constexpr double ColumnGap = 1080;
constexpr double BoxMargin = 504;
constexpr double BoxTop = 1584;
constexpr double BoxLines = 11; ///< the words' lines and one more
constexpr double GridGap = 288; ///< from the lines of the box to the grid
constexpr double GridWidth = 8640;
constexpr double MaxGridFontSize = 14;

/// One page in the making. Each procedure does its share of the page in order and tells whether the printer
/// went along.
class Page {
public:
    Page(PagePrinter& printer, std::span<const std::u16string> words, const generator::PuzzleWorkspace& workspace)
        : Printer(printer), Words(words), Workspace(workspace)
    {
    }

    bool Title(std::u16string_view title);
    bool WordList();
    bool Box();
    bool Grid();

private:
    std::optional<double> WidestOf(std::span<const std::u16string> column);
    bool SetGridFont();

    PagePrinter& Printer;
    std::span<const std::u16string> Words;
    const generator::PuzzleWorkspace& Workspace;
    double Width = 0;    ///< of the sheet
    double LineStep = 0; ///< of the word list
    double CellStep = 0; ///< of the grid
};

bool Page::Title(std::u16string_view title)
{
    if (!Printer.SetFont({u"Times New Roman", 26, true, true}))
        return false;
    const auto pageWidth = Printer.PageWidth();
    const auto titleWidth = pageWidth ? Printer.Measure(title) : std::nullopt;
    if (!titleWidth)
        return false;
    Width = *pageWidth;
    return Printer.Write({Width / 2 - *titleWidth / 2, TitleTop}, title);
}

bool Page::WordList()
{
    const auto size = Printer.SetFont({u"Times New Roman", 11, false, false});
    if (!size)
        return false;
    LineStep = RoundHalfToEven(*size * 1.5 * TwipsPerPoint);
    double x = WordsLeft;
    for (std::size_t i = 0; i < Words.size(); ++i) {
        const std::size_t line = i % WordsPerColumn;
        if (line == 0 && i > 0) {
            const auto widest = WidestOf(Words.subspan(i - WordsPerColumn, WordsPerColumn));
            if (!widest)
                return false;
            x += *widest + ColumnGap;
        }
        if (!Printer.Write({x, WordsTop + static_cast<double>(line) * LineStep}, Words[i]))
            return false;
    }
    return true;
}

/// The width of the widest word in whole twips.
std::optional<double> Page::WidestOf(std::span<const std::u16string> column)
{
    double widest = 0;
    for (const std::u16string& word : column) {
        const auto width = Printer.Measure(word);
        if (!width)
            return std::nullopt;
        widest = std::max(widest, RoundHalfToEven(*width));
    }
    return widest;
}

bool Page::Box()
{
    const double right = Width - BoxMargin;
    const double bottom = BoxTop + BoxLines * LineStep + 0.3;
    const std::array<PagePoint, 5> corners{
        {{BoxMargin, BoxTop}, {right, BoxTop}, {right, bottom}, {BoxMargin, bottom}, {BoxMargin, BoxTop}}};
    for (std::size_t side = 0; side + 1 < corners.size(); ++side)
        if (!Printer.DrawLine(corners.at(side), corners.at(side + 1)))
            return false;
    return true;
}

/// Sets the grid's font and step: letters of half a step, but no larger than MaxGridFontSize.
bool Page::SetGridFont()
{
    CellStep = RoundHalfToEven(GridWidth / Workspace.PuzzleSize);
    const auto asked = static_cast<float>(CellStep / 2 / TwipsPerPoint);
    auto size = Printer.SetFont({u"Courier New", asked, false, false});
    if (size && *size > MaxGridFontSize) {
        size = Printer.SetFont({u"Courier New", MaxGridFontSize, false, false});
        if (size)
            CellStep = RoundHalfToEven(*size * 2 * TwipsPerPoint);
    }
    return size.has_value();
}

bool Page::Grid()
{
    if (!SetGridFont())
        return false;
    const int size = Workspace.PuzzleSize;
    const double left = RoundHalfToEven((Width - size * CellStep) / 2);
    const double oneRowAbove = RoundHalfToEven(BoxLines * LineStep + WordsTop + GridGap - CellStep);
    for (int row = 1; row <= size; ++row)
        for (int column = 1; column <= size; ++column) {
            const char16_t letter = static_cast<unsigned char>(Workspace.PuzzleArray(row, column));
            if (!Printer.Write({left + (column - 1) * CellStep, oneRowAbove + row * CellStep}, {&letter, 1}))
                return false;
        }
    return true;
}

} // namespace

double ScaleForSheet(double width, double height)
{
    // The narrower of A4 and Letter, less what drivers round away, and the shorter of them.
    constexpr double MadeForWidth = 11880;
    constexpr double MadeForHeight = 15820;
    return std::min({1.0, width / MadeForWidth, height / MadeForHeight});
}

bool PrintPage(PagePrinter& printer, std::u16string_view title, std::span<const std::u16string> words,
               const generator::PuzzleWorkspace& workspace)
{
    Page page(printer, words, workspace);
    return page.Title(title) && page.WordList() && page.Box() && page.Grid() && printer.EndDocument();
}

} // namespace view
