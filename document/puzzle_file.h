#pragma once

#include <filesystem>
#include <iosfwd>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace document {

/// The program's version and the first record of every file it writes.
inline constexpr std::string_view Version = "2.2";

inline constexpr int MaxRecords = 101; ///< words taken from one file; what follows is not read

/// What the first record of a file says of the rest.
enum class Marker {
    Unreadable, ///< there was none: no such file, no access, not a regular file, no end in sight
    Current,
    Older, ///< of release 2.1; the rest is laid out alike
    Unknown,
};

/// The document that a puzzle file brought, as far as it could be read: words in the file's order, any
/// characters in any number. Nothing but the marker for a file that is not one of ours.
struct PuzzleFile {
    Marker marker = Marker::Unreadable;
    std::optional<std::u16string> title;
    std::vector<std::u16string> words;
};

/// Reads what stands at `path`. A failure at any point ends the reading quietly with what was read before it,
/// and so does a file that goes on for longer than any document could: time and memory are bounded.
PuzzleFile ReadPuzzleFile(const std::filesystem::path& path);
PuzzleFile ReadPuzzle(std::istream& in);

/// Creates or empties the file at `path` and writes the document into it, a quoted record a line. False as
/// soon as that fails; the file then keeps what was written before. Only regular files are written to.
bool WritePuzzleFile(const std::filesystem::path& path, std::u16string_view title,
                     std::span<const std::u16string> words);
bool WritePuzzle(std::ostream& out, std::u16string_view title, std::span<const std::u16string> words);

} // namespace document
