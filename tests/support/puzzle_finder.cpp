#include "tests/support/puzzle_finder.h"

#include <algorithm>
#include <bitset>

namespace {

using Cells = std::bitset<900>;

/// All places where the word can be read, as sets of cells.
std::vector<Cells> FindAll(const std::vector<std::string>& rows, const std::string& word)
{
    std::string letters = word;
    std::erase(letters, ' ');
    const int size = static_cast<int>(rows.size());
    const int length = static_cast<int>(word.size());
    const auto within = [size](int position) { return position >= 0 && position < size; };
    std::vector<Cells> found;
    for (int start = 0; start < size * size; ++start)
        for (int way = 0; way < 9; ++way) {
            const int down = way / 3 - 1;
            const int right = way % 3 - 1;
            const int r = start / size;
            const int c = start % size;
            if (way == 4 || !within(r + down * length) || !within(c + right * length))
                continue;
            Cells cells;
            bool reads = true;
            for (int i = 0; reads && i < static_cast<int>(letters.size()); ++i) {
                const auto row = static_cast<std::size_t>(r + down * i);
                const auto column = static_cast<std::size_t>(c + right * i);
                reads = rows[row][column] == letters[static_cast<std::size_t>(i)];
                cells.set(row * rows.size() + column);
            }
            if (reads && std::ranges::find(found, cells) == found.end())
                found.push_back(cells);
        }
    return found;
}

/// Whether each word can have a place so that no two words share more than one cell. Starts with the word that has
/// the fewest places left. `budget` limits the search.
bool Choose(std::vector<std::vector<Cells>> places, int& budget)
{
    if (places.empty())
        return true;
    std::ranges::iter_swap(std::ranges::min_element(places, {}, &std::vector<Cells>::size), places.end() - 1);
    const auto candidates = std::move(places.back());
    places.pop_back();
    return std::ranges::any_of(candidates, [&](const Cells& chosen) {
        auto left = places;
        for (auto& word : left)
            std::erase_if(word, [&](const Cells& place) { return (place & chosen).count() > 1; });
        return --budget > 0 && Choose(std::move(left), budget);
    });
}

} // namespace

std::string FaultOf(const SolvedPuzzle& puzzle)
{
    const std::size_t size = puzzle.rows.size();
    for (const std::string& row : puzzle.rows)
        if (row.size() != size || !std::ranges::all_of(row, [](char c) { return c >= 'A' && c <= 'Z'; }))
            return "not a square of capitals";
    std::vector<std::vector<Cells>> places;
    for (const std::string& word : puzzle.words) {
        places.push_back(FindAll(puzzle.rows, word));
        if (places.back().empty())
            return "not to be found: " + word;
    }
    int budget = 20'000;
    if (Choose(std::move(places), budget))
        return "";
    return budget > 0 ? "two words share more than one cell" : "undecided whether words overlap";
}
