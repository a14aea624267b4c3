#include "document/character_set.h"
#include "document/puzzle_file.h"
#include "tests/support/puzzles.h"

#include <QtTest>

using document::Marker;
using document::ReadPuzzle;
using document::WritePuzzle;

class DocumentTest : public QObject {
    Q_OBJECT

private slots:
    void WritesRecords()
    {
        const std::string animals = WritePuzzle(u"Animals", Words{u"CAT", u"DOG"});
        QCOMPARE(animals, std::string("\"2.2\"\r\n\"Animals\"\r\n\"CAT\"\r\n\"DOG\"\r\n"));
        QCOMPARE(animals.size(), 32U);
        QCOMPARE(WritePuzzle(u"", {}), std::string("\"2.2\"\r\n\"\"\r\n"));
        QCOMPARE(WritePuzzle(u"\u20AC\u00E9\u0416", {}), std::string("\"2.2\"\r\n\"\x80\xE9?\"\r\n"));
    }

    void ReadsFields_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("marker");
        QTest::addColumn<QString>("title"); // "-" where there is none
        QTest::addColumn<QString>("words"); // each followed by '/'
        const auto row = [](const char* name, const char* bytes, Marker marker, const char* title,
                            const char* words) {
            QTest::newRow(name) << QByteArray(bytes) << static_cast<int>(marker) << QString(title) << QString(words);
        };
        row("as written", "\"2.2\"\r\n\"Animals\"\r\n\"CAT\"\r\n\"DOG\"\r\n", Marker::Current, "Animals", "CAT/DOG/");
        row("older", "\"Glyphgrove2.1\"\r\n\"A\"\r\n\"B\"\r\n", Marker::Older, "A", "B/");
        row("file order", "\"2.2\"\r\n\"T\"\r\n\"dog\"\r\n\"CAT\"\r\n", Marker::Current, "T", "dog/CAT/");
        row("nothing", "", Marker::Unreadable, "-", "");
        row("only a quote", "\"", Marker::Unreadable, "-", "");
        row("empty line", "\r\n\"2.2\"", Marker::Unknown, "-", "");
        row("other case", "\"glyphgrove2.1\"\r\n\"A\"\r\n", Marker::Unknown, "-", "");
        row("blank in the marker", "\"2.2 \"\r\n\"A\"\r\n", Marker::Unknown, "-", "");
        row("only the marker", "\"2.2\"\r\n", Marker::Current, "-", "");
        row("comma and blanks in quotes", "\"2.2\"\r\n\" a, b \"\r\n\"C D\"\r\n", Marker::Current, " a, b ", "C D/");
        row("quote in the title", "\"2.2\"\r\n\"Say \"Hi\"\"\r\n\"CAT\"\r\n", Marker::Current, "Say ", "CAT/");
        row("comma after a quote", "\"2.2\"\r\n\"Say \"Hi, Ho\"\"\r\n\"CAT\"\r\n", Marker::Current, "Say ",
            "Ho\"\"/CAT/");
        row("empty title", "\"2.2\"\r\n\"\"\r\n\"CAT\"\r\n", Marker::Current, "", "CAT/");
        row("empty word", "\"2.2\"\r\n\"T\"\r\n\"A\"\r\n\"\"\r\n\"B\"\r\n", Marker::Current, "T", "A/");
        row("empty line among words", "\"2.2\"\r\n\"T\"\r\n\"A\"\r\n\r\n\"B\"\r\n", Marker::Current, "T", "A/");
        row("commas", "2.2,T,\"A\",B\r\n", Marker::Current, "T", "A/B/");
        row("unquoted, blanks round it", "2.2\r\n  My title  \r\n A B \r\n", Marker::Current, "My title", "A B/");
        row("line feeds", "\"2.2\"\n\"T\"\nA\n\"B\"\n", Marker::Current, "T", "A/B/");
        row("carriage returns", "\"2.2\"\r\"T\"\rA\r\"B\"\r", Marker::Current, "T", "A/B/");
        row("no last line end", "\"2.2\"\r\n\"T\"\r\n\"A\"\r\nB", Marker::Current, "T", "A/B/");
        row("torn in a word", "\"2.2\"\r\n\"T\"\r\n\"A\"\r\n\"B", Marker::Current, "T", "A/");
        row("torn in the title", "\"2.2\"\r\n\"T", Marker::Current, "-", "");
    }

    void ReadsFields()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, marker);
        QFETCH(QString, title);
        QFETCH(QString, words);
        const auto file = ReadPuzzle(bytes.toStdString());
        QCOMPARE(static_cast<int>(file.marker), marker);
        QCOMPARE(QString::fromStdU16String(file.title.value_or(u"-")), title);
        QString joined;
        for (const auto& word : file.words)
            joined += QString::fromStdU16String(word) + '/';
        QCOMPARE(joined, words);
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

    void EveryCharacterSurvives()
    {
        std::u16string all;
        for (int byte = 0; byte < 256; ++byte)
            if (byte != '"')
                all += document::DecodeCharacter(static_cast<char>(byte));
        const auto whole = ReadPuzzle(WritePuzzle(all, Words{all}));
        QVERIFY(whole.title == all && whole.words == Words{all});
        QCOMPARE(document::DecodeCharacter('\x80'), u'\u20AC');
        QCOMPARE(document::DecodeCharacter('\x9F'), u'\u0178');
        for (const char16_t missing : {u'\u0416', u'\u0080', u'\u0100', u'\u4E2D'})
            QVERIFY(!document::EncodeCharacter(missing));
        QCOMPARE(document::FilterTitle(u"Caf\u00E9 \u20AC\u4E2D\x81\n\"x\"\x7F", true),
                 std::u16string(u"Caf\u00E9 \u20AC\"x\""));

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
