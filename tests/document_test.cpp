#include "document/character_set.h"
#include "document/file_name.h"
#include "document/puzzle_file.h"
#include "tests/support/data.h"
#include "tests/support/puzzles.h"

#include <map>
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
        QCOMPARE(WritePuzzle(u"", {}), std::string("\"2.2\"\r\n\"\"\r\n"));
        QCOMPARE(WritePuzzle(u"\u20AC\u00E9\u0416", {}), std::string("\"2.2\"\r\n\"\x80\xE9?\"\r\n"));
    }

    /// What it is about, the bytes with "'" for the quote, what is read: kind of file, title, words.
    void ReadsFields()
    {
        const std::map<Marker, QString> markers{{Marker::Current, "Current"},
                                                {Marker::Older, "Older"},
                                                {Marker::Unknown, "Unknown"},
                                                {Marker::Unreadable, "Unreadable"}};
        for (const QStringList& row : Rows("fields.json")) {
            const auto file = ReadPuzzle(QString(row[1]).replace('\'', '"').toStdString());
            QString told = row[0] + ": " + markers.at(file.marker);
            told += file.title ? " [" + QString::fromStdU16String(*file.title) + "] " : " ";
            for (const auto& word : file.words)
                told += QString::fromStdU16String(word) + '/';
            QCOMPARE(told.replace('"', '\''), row[0] + ": " + row[2]);
        }
    }

    void BoundsWhatItReads()
    {
        QCOMPARE(ReadPuzzle(WritePuzzle(u"T", Words(120, u"W"))).words.size(), 101U);
        // A field without end is a failure to read, before it fills the memory.
        const std::string flood(1'000'000, 'x');
        QCOMPARE(ReadPuzzle(flood).marker, Marker::Unreadable);
        QVERIFY(!ReadPuzzle("\"2.2\"\r\n" + flood).title);
        QCOMPARE(ReadPuzzle("\"2.2\"\r\n\"T\"\r\n\"A\"\r\n" + flood).words.size(), 1U);
        // Up to the bound a field is whole: 14 bytes come before the word here.
        const auto wordOf = [](std::size_t length) {
            return ReadPuzzle("\"2.2\"\r\n\"T\"\r\n" + std::string(length, 'x')).words;
        };
        QCOMPARE(wordOf(document::MaxFileBytes - 13).size(), 1U);
        QCOMPARE(wordOf(document::MaxFileBytes - 12).size(), 0U);
    }

    void NamesFilesAfterTitles()
    {
        QCOMPARE(document::FileNameFor(u". 10\x1F km: A\\B? . "), std::u16string(u"10- km- A-B-"));
        QCOMPARE(document::FileNameFor(u" .. "), std::u16string(u"New Puzzle"));
        QCOMPARE(document::FileNameFor(u"P" + std::u16string(60, u'x')), u"P" + std::u16string(59, u'x'));
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
        std::u16string titles;
        for (const char16_t character : std::u16string(u"Caf\u00E9 \u00A0\u20AC\u4E2D\x81\n\"x\"\x7F"))
            if (document::TakesInTitle(character, true))
                titles += character;
        QCOMPARE(titles, std::u16string(u"Caf\u00E9 \u00A0\u20AC\"x\""));

        generator::RandomSource random = FixedRandom(11);
        const auto anyText = [&](int longest) {
            std::u16string text;
            for (int length = random.DrawBelow(longest); length >= 0; --length)
                text += all[static_cast<std::size_t>(random.DrawBelow(255))];
            return text;
        };
        for (int round = 0; round < 10'000; ++round) {
            Words words(static_cast<std::size_t>(random.DrawBelow(41)));
            for (auto& word : words)
                word = anyText(20);
            const auto title = anyText(30);
            const auto file = ReadPuzzle(WritePuzzle(title, words));
            QVERIFY(file.title == title && file.words == words);
        }
    }
};

QTEST_APPLESS_MAIN(DocumentTest)
#include "document_test.moc"
