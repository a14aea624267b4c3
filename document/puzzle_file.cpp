#include "document/puzzle_file.h"

#include "document/character_set.h"

#include <algorithm>
#include <fstream>

namespace document {

namespace {

constexpr std::u16string_view OlderMarker = u"Glyphgrove2.1";
// A full list makes less than 2 KiB. What takes more than this is no document, and a title of a gigabyte
// would not only fill the memory but the windows too.
constexpr std::size_t MaxBytes = 65'536;

/// Takes the fields of a file one after another. A field ends at a comma or a line end (LF, CR LF or CR).
class FieldReader {
public:
    explicit FieldReader(std::istream& in);

    /// The next field's text, or nothing when the file ends or fails before the field does.
    std::optional<std::u16string> Next();

private:
    std::optional<std::u16string> Quoted();
    std::optional<std::u16string> Unquoted();
    bool AtEnd() const { return Position == Bytes.size(); }
    bool AtFieldEnd() const;
    void SkipFieldEnd();

    std::string Bytes;
    bool Complete = false; ///< Bytes holds all of the file, so that its end is an end
    std::size_t Position = 0;
};

FieldReader::FieldReader(std::istream& in) : Bytes(MaxBytes, '\0')
{
    in.read(Bytes.data(), static_cast<std::streamsize>(Bytes.size()));
    Bytes.resize(static_cast<std::size_t>(in.gcount()));
    Complete = in.eof() && !in.bad();
}

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
    if (AtEnd() && !Complete)
        return std::nullopt;
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

/// Devices and pipes can go on for ever or wait for ever, and a folder is no file: none of them is touched.
bool IsRegularFile(const std::filesystem::path& path)
{
    std::error_code failure;
    return std::filesystem::is_regular_file(path, failure);
}

bool IsFreeName(const std::filesystem::path& path)
{
    std::error_code failure;
    return std::filesystem::status(path, failure).type() == std::filesystem::file_type::not_found;
}

void WriteRecord(std::ostream& out, std::u16string_view text)
{
    out << '"';
    for (const char16_t character : text)
        out << EncodeCharacter(character).value_or('?');
    out << "\"\r\n";
}

} // namespace

PuzzleFile ReadPuzzleFile(const std::filesystem::path& path)
{
    if (!IsRegularFile(path))
        return {};
    std::ifstream in(path, std::ios::binary);
    return ReadPuzzle(in);
}

PuzzleFile ReadPuzzle(std::istream& in)
{
    FieldReader reader(in);
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

bool WritePuzzleFile(const std::filesystem::path& path, std::u16string_view title,
                     std::span<const std::u16string> words)
{
    if (!IsRegularFile(path) && !IsFreeName(path))
        return false;
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    const bool written = WritePuzzle(out, title, words);
    out.close();
    return written && out.good();
}

bool WritePuzzle(std::ostream& out, std::u16string_view title, std::span<const std::u16string> words)
{
    WriteRecord(out, std::u16string(Version.begin(), Version.end()));
    WriteRecord(out, title);
    for (const std::u16string& word : words)
        WriteRecord(out, word);
    return out.good();
}

} // namespace document
