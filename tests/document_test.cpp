#include "document/character_set.h"
#include "document/puzzle_file.h"
#include "tests/support/puzzles.h"

#include <QtTest>

#include <set>

using document::Marker;
using document::ReadPuzzle;
using document::WritePuzzle;

class DocumentTest : public QObject {
    Q_OBJECT

private slots:
    void WritesRecords()
    {
        QCOMPARE(WritePuzzle(u"Animals", Words{u"CAT", u"DOG"}),
                 std::string("\"2.2\"\r\n\"Animals\"\r\n\"CAT\"\r\n\"DOG\"\r\n"));
        QCOMPARE(WritePuzzle(u"\u20AC\u00E9\u0416", {}), std::string("\"2.2\"\r\n\"\x80\xE9?\"\r\n"));
    }

    /// The bytes of a file ("'" is a quote, "/" is CR LF), and the kind, title and words that the reader finds.
    void ReadsFields()
    {
        const QMap<Marker, QString> markers{
            {Marker::Current, "Current"}, {Marker::Older, "Older"}, {Marker::Unknown, "Unknown"}};
        for (const auto& [bytes, expected] : std::initializer_list<std::pair<const char*, const char*>>{
                 {"'2.2'/'T'/'dog'/'CAT'/", "Current [T] dog|CAT|"},
                 {"'Glyphgrove2.1'/'A'/'B'/", "Older [A] B|"},
                 {"'", "Unreadable "},
                 {"'2.2 '/'A'/", "Unknown "},
                 {"'2.2'/", "Current "},
                 {"'2.2'/' a, b '/'C D'/", "Current [ a, b ] C D|"},
                 {"'2.2'/'Say 'Hi, Ho''/'CAT'/", "Current [Say ] Ho''|CAT|"},
                 {"'2.2'/''/'CAT'/'A'/''/'B'/", "Current [] CAT|A|"},
                 {"2.2,T,'A',B", "Current [T] A|B|"},
                 {"2.2/  My title  / A B /", "Current [My title] A B|"},
                 {"'2.2'\n'T'\nA\r'B'\r", "Current [T] A|B|"},
                 {"'2.2'/'T'/'A'/'B", "Current [T] A|"},
                 {"'2.2'/'T", "Current "}}) {
            const auto file = ReadPuzzle(QString(bytes).replace('\'', '"').replace("/", "\r\n").toStdString());
            QString read = markers.value(file.marker, "Unreadable") + ' ';
            read += file.title ? '[' + QString::fromStdU16String(*file.title) + "] " : "";
            for (const auto& word : file.words)
                read += QString::fromStdU16String(word) + '|';
            QCOMPARE(read.replace('"', '\''), expected);
        }
    }

    void BoundsWhatItReads()
    {
        QCOMPARE(ReadPuzzle(WritePuzzle(u"T", Words(120, u"W"))).words.size(), 101U);
        // The reader gives up on an endless field before it fills the memory.
        const std::string flood(1'000'000, 'x');
        QCOMPARE(ReadPuzzle(flood).marker, Marker::Unreadable);
        QVERIFY(!ReadPuzzle("2.2," + flood).title);
        // The limit counts from the start of the file. 12 bytes come before the word here.
        const auto wordOf = [](std::size_t length) {
            return ReadPuzzle("\"2.2\"\r\n\"T\"\r\n" + std::string(length, 'x')).words;
        };
        QCOMPARE(wordOf(document::MaxFileBytes - 13).size(), 1U);
        QCOMPARE(wordOf(document::MaxFileBytes - 12).size(), 0U);
    }

    void EveryCharacterSurvives()
    {
        std::u16string all;
        for (int byte = 0; byte < 256; ++byte)
            if (byte != '"')
                all += document::DecodeCharacter(static_cast<char>(byte));
        QCOMPARE(std::set(all.begin(), all.end()).size(), 255U);
        const auto whole = ReadPuzzle(WritePuzzle(all, Words{all}));
        QVERIFY(whole.title == all && whole.words == Words{all});
        QCOMPARE(document::DecodeCharacter('\x9F'), u'\u0178');
        for (const char16_t missing : {u'\u0416', u'\u0080', u'\u0100', u'\u4E2D'})
            QVERIFY(!document::EncodeCharacter(missing));
        std::u16string title = u"Caf\u00E9 \u00A0\u20AC\u4E2D\x81\n\"x\"\x7F";
        std::erase_if(title, [](char16_t character) { return !document::TakesInTitle(character, true); });
        QCOMPARE(title, std::u16string(u"Caf\u00E9 \u00A0\u20AC\"x\""));
    }
};

QTEST_APPLESS_MAIN(DocumentTest)
#include "document_test.moc"
