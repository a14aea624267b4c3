#pragma once

#include <string>
#include <vector>

/// A finished puzzle as a solver holds it: the rows of the grid and the words beside it. It knows nothing of
/// how puzzles are made.
struct SolvedPuzzle {
    std::vector<std::string> rows;
    std::vector<std::string> words; ///< as listed, in any letter case, blanks included
};

/// Looks for every word in the grid and says what is wrong, or "" when the puzzle keeps all of its promises:
/// a square of capitals; each word, without its blanks, in a straight line that still has a cell of the grid
/// after its whole length; and places for all words at once of which no two share more than one cell.
std::string FaultOf(const SolvedPuzzle& puzzle);
