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

/// What laying out a page asks of a printer.
struct PageMetrics {
    double width; ///< of the sheet, in twips; of a sheet that is scaled to, before scaling
    /// The size in effect, in points, when `font` is asked for.
    std::function<double(const PageFont& font)> size;
    /// The width of `text` in `font`, in twips.
    std::function<double(const PageFont& font, std::u16string_view text)> textWidth;
};

/// A text of the page and where its top left corner is: twips from the sheet's, fractions allowed.
struct PageText {
    PageFont font;
    double x;
    double y;
    std::u16string text;
};

/// The ruled box, in twips.
struct PageBox {
    double left, top, right, bottom;
};

struct Page {
    std::vector<PageText> texts; ///< title, words, letters of the grid row by row
    PageBox box;
};

/// Lays out the one page of a puzzle: the title, the words in columns of ten inside a ruled box, the grid of
/// `workspace`.
Page LayOutPage(const PageMetrics& printer, std::u16string_view title, std::span<const std::u16string> words,
                const generator::PuzzleWorkspace& workspace);

/// The scale at which a page goes onto a sheet of a size in twips: 1 on A4, Letter and everything larger, less on a
/// smaller sheet, so that all of it is on paper.
double ScaleForSheet(double width, double height);

} // namespace view
