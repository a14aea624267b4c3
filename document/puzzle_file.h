#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace document {

/// The program's version; also the first record of every file that it writes.
inline constexpr std::string_view Version = GLYPHGROVE_VERSION;

inline constexpr int MaxWordsRead = 101; ///< words read from one file; the rest is ignored

/// Bytes read from one file. A full list takes less than 2 KiB; the limit keeps a huge file from filling memory.
inline constexpr std::size_t MaxFileBytes = 65'536;

/// What the first record of a file says about the rest.
enum class Marker {
    Unreadable, ///< no complete first record, as in an empty file
    Current,
    Older, ///< written by release 2.1; otherwise the same format
    Unknown,
};

/// The part of a puzzle file that could be read: the words in file order, with any characters and of any length. Only
/// the marker is set when the file is not a puzzle file.
struct PuzzleFile {
    Marker marker = Marker::Unreadable;
    std::optional<std::u16string> title;
    std::vector<std::u16string> words;
};

/// Reads the first MaxFileBytes of a file. Reading stops without an error after the last complete field. A field that
/// the limit cuts off, or a quote that is never closed, is not complete.
PuzzleFile ReadPuzzle(std::string_view bytes);

/// Returns the bytes of a file, one quoted record per line. Characters that Windows-1252 lacks become "?".
std::string WritePuzzle(std::u16string_view title, std::span<const std::u16string> words);

} // namespace document
