#pragma once

#include "generator/workspace.h"

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace view {

struct PageFont {
    const char16_t* name;
    double size; ///< points, fractions allowed
    bool bold = false;
    bool italic = false;

    bool operator==(const PageFont&) const = default;
};

/// What the layout of a page needs to know about the printer.
struct PageMetrics {
    double width; ///< of the sheet in twips, divided by ScaleForSheet
    /// Returns the size in points that the printer uses for `font`.
    std::function<double(const PageFont& font)> size;
    /// Returns the width of `text` in `font`, in twips.
    std::function<double(const PageFont& font, std::u16string_view text)> textWidth;
};

/// A text and its top left corner, in twips (1/1440 inch) from the top left of the sheet; fractions allowed.
struct PageText {
    PageFont font;
    double x;
    double y;
    std::u16string text;
};

/// The ruled box around the words, in twips.
struct PageBox {
    double left, top, right, bottom;
};

struct Page {
    std::vector<PageText> texts; ///< title, words, letters of the grid row by row
    PageBox box;
};

/// Lays out a puzzle on one page: the title, the words in columns of ten inside a ruled box, and the grid.
/// `workspace` must hold a finished puzzle.
Page LayOutPage(const PageMetrics& printer, std::u16string_view title, std::span<const std::u16string> words,
                const generator::PuzzleWorkspace& workspace);

/// Returns the scale that makes a page fit a sheet of the given size in twips: 1 on A4, Letter and larger sheets,
/// less than 1 on smaller ones.
double ScaleForSheet(double width, double height);

} // namespace view
