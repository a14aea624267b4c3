#include "document/puzzle_file.h"

#include "document/character_set.h"

#include <algorithm>

namespace document {

namespace {

constexpr std::u16string_view OlderMarker = u"Glyphgrove2.1";

/// Takes the fields of a file one after another. A field ends at a comma or a line end (LF, CR LF or CR).
class FieldReader {
public:
    explicit FieldReader(std::string_view bytes) : Bytes(bytes.substr(0, MaxFileBytes)) {}

    /// The next field's text, or nothing when the file ends before the field does.
    std::optional<std::u16string> Next();

private:
    std::optional<std::u16string> Quoted();
    std::optional<std::u16string> Unquoted();
    bool AtEnd() const { return Position == Bytes.size(); }
    bool AtFieldEnd() const;
    void SkipFieldEnd();

    std::string_view Bytes;
    std::size_t Position = 0;
};

std::optional<std::u16string> FieldReader::Next()
{
    Position = std::min(Bytes.find_first_not_of(' ', Position), Bytes.size());
    if (AtEnd())
        return std::nullopt;
    auto field = Bytes[Position] == '"' ? Quoted() : Unquoted();
    SkipFieldEnd();
    return field;
}

std::optional<std::u16string> FieldReader::Quoted()
{
    std::u16string text;
    for (++Position; !AtEnd(); ++Position) {
        if (Bytes[Position] == '"') {
            while (!AtEnd() && !AtFieldEnd())
                ++Position;
            return text;
        }
        text += DecodeCharacter(Bytes[Position]);
    }
    return std::nullopt;
}

std::optional<std::u16string> FieldReader::Unquoted()
{
    std::u16string text;
    for (; !AtEnd() && !AtFieldEnd(); ++Position)
        text += DecodeCharacter(Bytes[Position]);
    if (Position == MaxFileBytes)
        return std::nullopt; // there may be more of it
    text.erase(text.find_last_not_of(u' ') + 1);
    return text;
}

bool FieldReader::AtFieldEnd() const
{
    return std::string_view(",\r\n").find(Bytes[Position]) != std::string_view::npos;
}

void FieldReader::SkipFieldEnd()
{
    const bool pair = Bytes.compare(Position, 2, "\r\n") == 0;
    Position = std::min(Position + (pair ? 2 : 1), Bytes.size());
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
    FieldReader reader(bytes);
    PuzzleFile file{MarkerOf(reader.Next()), {}, {}};
    if (file.marker != Marker::Current && file.marker != Marker::Older)
        return file;
    file.title = reader.Next();
    while (file.title && file.words.size() < MaxRecords) {
        auto word = reader.Next();
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
