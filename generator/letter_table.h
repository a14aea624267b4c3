#pragma once

#include <array>
#include <cstddef>

namespace generator {

inline constexpr char Empty = '\0'; ///< an empty slot or cell
inline constexpr char Blank = ' ';  ///< a space or other character that takes no cell

/// A table of letters with rows 0..LastRow and columns 0..LastColumn, initially Empty. An index past the last cell
/// throws std::out_of_range; a column past the end of a row is not detected.
template <int LastRow, int LastColumn>
class LetterTable {
public:
    char& operator()(int row, int column) { return Letters.at(Index(row, column)); }
    char operator()(int row, int column) const { return Letters.at(Index(row, column)); }

    /// Empties rows 1..rows of columns 1..columns.
    void Clear(int rows = LastRow, int columns = LastColumn)
    {
        for (int row = 1; row <= rows; ++row)
            for (int column = 1; column <= columns; ++column)
                (*this)(row, column) = Empty;
    }

    bool operator==(const LetterTable&) const = default;

private:
    static constexpr std::size_t Index(int row, int column)
    {
        return static_cast<std::size_t>(row) * (LastColumn + 1) + static_cast<std::size_t>(column);
    }

    std::array<char, static_cast<std::size_t>(LastRow + 1) * (LastColumn + 1)> Letters{};
};

} // namespace generator
