#include "document/puzzle_file.h"

#include "document/character_set.h"

#include <algorithm>
#include <iterator>

namespace document {

namespace {

constexpr std::u16string_view OlderMarker = u"Glyphgrove2.1";

/// Reads the field at `position` and moves `position` past it. A field ends at a comma or at a line end (LF, CR LF or
/// CR). Returns std::nullopt, and again on every later call, when the bytes end before the field does.
std::optional<std::u16string> NextField(std::string_view bytes, std::size_t& position)
{
    constexpr std::string_view FieldEnds = ",\r\n";
    position = bytes.find_first_not_of(' ', position);
    if (position == std::string_view::npos)
        return std::nullopt;
    const bool quoted = bytes[position] == '"';
    const std::size_t start = position + (quoted ? 1 : 0);
    const std::size_t stop = bytes.find_first_of(quoted ? "\"" : FieldEnds, start);
    if (stop == std::string_view::npos && (quoted || bytes.size() == MaxFileBytes))
        return std::nullopt; // the rest of the field may lie beyond the limit
    std::string_view field = bytes.substr(start, stop - start);
    if (!quoted)
        field = field.substr(0, field.find_last_not_of(' ') + 1);
    const std::size_t end = std::min(bytes.find_first_of(FieldEnds, stop), bytes.size());
    position = end + (bytes.substr(end, 2) == "\r\n" ? 2 : 1);
    std::u16string text;
    std::ranges::transform(field, std::back_inserter(text), DecodeCharacter);
    return text;
}

Marker MarkerOf(const std::optional<std::u16string>& field)
{
    if (!field)
        return Marker::Unreadable;
    if (std::ranges::equal(*field, Version))
        return Marker::Current;
    return *field == OlderMarker ? Marker::Older : Marker::Unknown;
}

void AppendRecord(std::string& file, std::u16string_view text)
{
    file += '"';
    for (const char16_t character : text)
        file += EncodeCharacter(character).value_or('?');
    file += "\"\r\n";
}

} // namespace

PuzzleFile ReadPuzzle(std::string_view bytes)
{
    bytes = bytes.substr(0, MaxFileBytes);
    std::size_t position = 0;
    PuzzleFile file{MarkerOf(NextField(bytes, position)), {}, {}};
    if (file.marker != Marker::Current && file.marker != Marker::Older)
        return file;
    file.title = NextField(bytes, position);
    while (file.title && file.words.size() < MaxWordsRead) {
        auto word = NextField(bytes, position);
        if (!word || word->empty())
            break;
        file.words.push_back(std::move(*word));
    }
    return file;
}

std::string WritePuzzle(std::u16string_view title, std::span<const std::u16string> words)
{
    std::string file;
    AppendRecord(file, std::u16string(Version.begin(), Version.end()));
    AppendRecord(file, title);
    for (const std::u16string& word : words)
        AppendRecord(file, word);
    return file;
}

} // namespace document
