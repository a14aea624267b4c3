#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace document {

/// The program's version, and the first record of every file that it writes.
inline constexpr std::string_view Version = GLYPHGROVE_VERSION;

inline constexpr int MaxRecords = 101; ///< words taken from one file; what follows is not read

/// Bytes of a file that are looked at. A full list makes less than 2 KiB; what takes more than this is no
/// document, and a title of a gigabyte would not only fill the memory but the windows too.
inline constexpr std::size_t MaxFileBytes = 65'536;

/// What the first record of a file says of the rest.
enum class Marker {
    Unreadable, ///< there was none: an empty file, or a field without an end in sight
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

/// Reads a file of which `bytes` are the first MaxFileBytes, or all where it is shorter. The reading ends quietly
/// with the last field that is whole: a field that the bound cuts off, or a quoted one that the file does, is not.
PuzzleFile ReadPuzzle(std::string_view bytes);

/// The document as a file: a quoted record a line. Characters that the file's character set lacks become "?".
std::string WritePuzzle(std::u16string_view title, std::span<const std::u16string> words);

} // namespace document
