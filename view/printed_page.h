#pragma once

#include "generator/workspace.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace view {

struct PageFont {
    const char16_t* name;
    double size; ///< points, fractions allowed
    bool bold;
    bool italic;
};

/// A place on the page in twips from the sheet's top left corner; fractions allowed.
struct PagePoint {
    double x;
    double y;
};

/// What the printed page asks of a printer while it composes one document. Every operation can fail; after a
/// failure nothing more is asked.
class PagePrinter {
public:
    virtual ~PagePrinter() = default;

    /// The width of the sheet in twips; of a sheet that is scaled to, before scaling.
    virtual std::optional<double> PageWidth() = 0;
    /// Takes the font for what follows and answers the size in effect, in points.
    virtual std::optional<double> SetFont(const PageFont& font) = 0;
    /// The width of `text` in the current font, in twips.
    virtual std::optional<double> Measure(std::u16string_view text) = 0;
    /// Writes `text` with its top left corner at `position`.
    virtual bool Write(PagePoint position, std::u16string_view text) = 0;
    /// Rules a straight black line.
    virtual bool DrawLine(PagePoint from, PagePoint to) = 0;
    /// Ends the document, which sends its one page to the printer.
    virtual bool EndDocument() = 0;
};

/// The scale at which a page goes onto a sheet of a size in twips: 1 on A4, Letter and everything larger; below where
/// the sheet is smaller than what the page is made for, so that all of it is on paper.
double ScaleForSheet(double width, double height);

/// Composes the one page of a puzzle: the title, the words in columns of ten inside a ruled box, the grid of
/// `workspace`. False as soon as the printer fails; the document is then not ended.
bool PrintPage(PagePrinter& printer, std::u16string_view title, std::span<const std::u16string> words,
               const generator::PuzzleWorkspace& workspace);

} // namespace view
