#pragma once

#include "view/printed_page.h"

#include <array>
#include <cmath>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

/// A printer that notes what it is asked: exact, or odd where a test says so.
class Recorder : public view::PagePrinter {
public:
    struct Text {
        double x, y;
        std::u16string text;
    };

    double Width = 11906;
    bool WholePoints = false; ///< rounds font sizes to whole points
    int CallsUntilFailure = std::numeric_limits<int>::max();

    std::vector<std::string> Fonts;
    std::vector<Text> Texts;
    std::vector<std::array<double, 4>> Lines;
    int Calls = 0;
    int Ended = 0;

    std::optional<double> PageWidth() override { return Answer(Width); }
    std::optional<double> SetFont(const view::PageFont& font) override
    {
        Size = WholePoints ? std::round(font.size) : font.size;
        std::ostringstream told;
        told << std::string(font.name, font.name + std::u16string_view(font.name).size()) << ' ' << font.size
             << (font.bold ? " bold" : "") << (font.italic ? " italic" : "");
        Fonts.push_back(told.str());
        return Answer(Size);
    }
    /// Every character is half as wide as its font is high, and a little more, for fractions.
    std::optional<double> Measure(std::u16string_view text) override
    {
        return Answer(static_cast<double>(text.size()) * (Size * 10 + 0.25));
    }
    bool Write(view::PagePoint position, std::u16string_view text) override
    {
        Texts.push_back({position.x, position.y, std::u16string(text)});
        return Answer(0).has_value();
    }
    bool DrawLine(view::PagePoint from, view::PagePoint to) override
    {
        Lines.push_back({from.x, from.y, to.x, to.y});
        return Answer(0).has_value();
    }
    bool EndDocument() override
    {
        ++Ended;
        return Answer(0).has_value();
    }

private:
    std::optional<double> Answer(double value)
    {
        return ++Calls >= CallsUntilFailure ? std::nullopt : std::optional(value);
    }
    double Size = 0;
};
