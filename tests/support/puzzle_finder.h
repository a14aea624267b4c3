#pragma once

#include <string>
#include <vector>

/// A finished puzzle as a solver sees it.
struct SolvedPuzzle {
    std::vector<std::string> rows;
    std::vector<std::string> words; ///< in capitals, with blanks
};

/// What is wrong with the puzzle, or "". The grid must be a square of capitals. Each word, without its blanks, must
/// be in a straight line with one more cell after its full length. No two words may share more than one cell.
std::string FaultOf(const SolvedPuzzle& puzzle);
