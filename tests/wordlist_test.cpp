#include "tests/support/puzzles.h"
#include "wordlist/entry.h"
#include "wordlist/limits.h"
#include "wordlist/order.h"

#include <QtTest>

#include <algorithm>

class WordListTest : public QObject {
    Q_OBJECT

private slots:
    void AdmitsEdits_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("wanted");
        QTest::addColumn<bool>("typed");
        QTest::addColumn<QString>("admitted"); // "-" when all of it is discarded
        const auto row = [](const char* name, const char* before, const char* wanted, bool typed,
                            const char* admitted) { QTest::newRow(name) << before << wanted << typed << admitted; };
        row("letter", "CA", "CAt", true, "CAt");
        row("digit", "CA", "CA1", true, "-");
        row("digit over a selection", "CAT", "C1", true, "-");
        row("accent", "CA", "C\u00C9", true, "-");
        row("hyphen in the middle", "CAT", "C-AT", true, "-");
        row("blank at the front of a word", "CAT", " CAT", true, " CAT");
        row("blank in the empty box", "", " ", true, "-");
        row("blank over all that was selected", "CAT", " ", true, " ");
        row("paste of a phrase", "", "  3 ice-creams!", false, "icecreams");
        row("paste over all", "CAT", " DOG", false, "DOG");
        row("paste of all over all", "CAT", " CAT", false, "-");
        row("paste over the front", "CAT FOOD", " DOG FOOD", false, "DOG FOOD");
        row("paste in front", "CAT", "  DOGCAT", false, "DOGCAT");
        row("paste at the end", "ICE", "ICE CREAM 2", false, "ICE CREAM ");
        row("paste that leaves nothing", "CAT", "C123", false, "-");
        row("paste with line ends", "", "CAT\nDOG\tFOX\u2028", false, "CAT DOG FOX ");
        row("paste cut at 20", "ABCDEFGHIJ", "ABCDEKLMNOPQRSTUVFGHIJ", false, "ABCDEKLMNOPQRSTFGHIJ");
        row("21st letter", "ABCDEFGHIJKLMNOPQRST", "ABCDEFGHIJKLMNOPQRSTU", true, "-");
        row("too long from a file, a letter more", "ABCDEFGHIJKLMNOPQRSTUVW", "AxBCDEFGHIJKLMNOPQRSTUVW", true, "-");
        row("too long from a file, a letter less", "ABCDEFGHIJKLMNOPQRSTUV-1", "ABCDEFGHIJKLMNOPQRSTU-1", true,
            "ABCDEFGHIJKLMNOPQRSTU-1");
        row("equal letters", "AAA", "AAAA", true, "AAAA");
        row("cleared", "CAT", "", true, "");
    }

    void AdmitsEdits()
    {
        QFETCH(QString, before);
        QFETCH(QString, wanted);
        QFETCH(bool, typed);
        QFETCH(QString, admitted);
        const auto change = wordlist::AdmitEdit(before.toStdU16String(), {wanted.toStdU16String(), typed},
                                                {wordlist::FilterWord, 20});
        auto after = before.toStdU16String();
        if (change)
            after.replace(change->position, change->removed, change->inserted);
        QCOMPARE(change ? QString::fromStdU16String(after) : "-", admitted);
    }

    void InsertsInAlphabeticalOrder()
    {
        const auto place = [](const Words& words, std::u16string_view word) {
            return static_cast<int>(wordlist::InsertPosition(words, word));
        };
        const Words words{u"ant", u"Bee", u"cat", u"Cat", u"ICE AGE", u"ICEBERG", u"\u00C9lan"};
        QCOMPARE(place({}, u"cat"), 0);
        QCOMPARE(place(words, u"AAA"), 0);
        QCOMPARE(place(words, u"BEE"), 2);
        QCOMPARE(place(words, u"CAT"), 4); // after those that compare equal
        QCOMPARE(place(words, u"ice"), 4);
        QCOMPARE(place(words, u"ice cream"), 5); // a blank before any letter
        QCOMPARE(place(words, u"zoo"), 7);
        QCOMPARE(place({u"cat", u"dog", u"\u00C9lan", u"fox"}, u"elm"), 3);

        generator::RandomSource random = FixedRandom(3);
        Words grown;
        for (const auto& word : RandomWords(random, 300, 3, 4)) {
            const auto position = static_cast<std::ptrdiff_t>(wordlist::InsertPosition(grown, word));
            grown.insert(grown.begin() + position, word);
        }
        QVERIFY(std::ranges::is_sorted(grown));
        // In a list out of order every word still gets a place in it.
        for (const auto& word : RandomWords(random, 50, 3))
            QVERIFY(wordlist::InsertPosition(RandomWords(random, 9, 3), word) <= 9);
    }

    void NamesWhatKeepsAListFromAPuzzle()
    {
        using wordlist::ObstacleToPuzzle;
        const std::u16string twenty(20, u'A');
        QVERIFY(!ObstacleToPuzzle({}));
        QVERIFY(!ObstacleToPuzzle(Words(40, twenty)));
        QVERIFY(!ObstacleToPuzzle(Words{u"\u00DF", u"A 1", u"  "}));
        const auto tells = [](const Words& words, const QString& text) {
            const auto obstacle = ObstacleToPuzzle(words);
            return obstacle && QString::fromStdU16String(*obstacle).contains(text);
        };
        QVERIFY(tells(Words{twenty + u"B", u"CAT"}, "shorten to 20 characters:\n\"AAAAAAAAAAAAAAAAAAAAB\""));
        QVERIFY(tells(Words{twenty + u"B", u" 12 "}, "a letter to hide:\n\" 12 \""));
        Words many(40, u"CAT");
        many.insert(many.end(), {u"DOG", u"FOX"});
        QVERIFY(tells(many, "holds 42 words, and a puzzle has room for 40. Please remove 2"));
        QVERIFY(tells(many, "\"DOG\", \"FOX\""));
        // The message fits a screen whatever the file brings.
        const auto longest = ObstacleToPuzzle(Words(101, std::u16string(60'000, u'\n')));
        QVERIFY(longest && longest->size() < 4000);
    }
};

QTEST_APPLESS_MAIN(WordListTest)
#include "wordlist_test.moc"
