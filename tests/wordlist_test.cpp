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
        QTest::addColumn<QString>("wanted"); // '|' is the cursor
        QTest::addColumn<QString>("admitted");
        QTest::newRow("letter") << "CA"
                                << "CAt|"
                                << "CAt|";
        QTest::newRow("digit") << "CA"
                               << "CA1|"
                               << "CA|";
        QTest::newRow("accent") << "CA"
                                << "C\u00C9|A"
                                << "C|A";
        QTest::newRow("hyphen in the middle") << "CAT"
                                              << "C-|AT"
                                              << "C|AT";
        QTest::newRow("blank at the front of a word") << "CAT"
                                                      << " |CAT"
                                                      << " |CAT";
        QTest::newRow("blank in the empty box") << ""
                                                << " |"
                                                << "|";
        QTest::newRow("blank over all that was selected") << "CAT"
                                                          << " |"
                                                          << " |";
        QTest::newRow("paste of a phrase") << ""
                                           << "  3 ice-creams!|"
                                           << "icecreams|";
        QTest::newRow("paste over all") << "CAT"
                                        << " DOG|"
                                        << "DOG|";
        QTest::newRow("paste with a line end") << ""
                                               << "CAT\nDOG|"
                                               << "CATDOG|";
        QTest::newRow("paste cut at 20") << "ABCDEFGHIJ"
                                         << "ABCDEKLMNOPQRSTUV|FGHIJ"
                                         << "ABCDEKLMNOPQRST|FGHIJ";
        QTest::newRow("21st letter") << "ABCDEFGHIJKLMNOPQRST"
                                     << "ABCDEFGHIJKLMNOPQRSTU|"
                                     << "ABCDEFGHIJKLMNOPQRST|";
        QTest::newRow("too long from a file, a letter more") << "ABCDEFGHIJKLMNOPQRSTUVW"
                                                             << "AxBCDEFGHIJKLMNOPQRSTUVW|"
                                                             << "ABCDEFGHIJKLMNOPQRSTUVW|";
        QTest::newRow("too long from a file, a letter less") << "ABCDEFGHIJKLMNOPQRSTUV-1"
                                                             << "ABCDEFGHIJKLMNOPQRSTU|-1"
                                                             << "ABCDEFGHIJKLMNOPQRSTU|-1";
        QTest::newRow("equal letters") << "AAA"
                                       << "AA|AA"
                                       << "AA|AA";
        QTest::newRow("cleared") << "CAT"
                                 << "|"
                                 << "|";
    }

    void AdmitsEdits()
    {
        QFETCH(QString, before);
        QFETCH(QString, wanted);
        QFETCH(QString, admitted);
        const auto cursor = static_cast<std::size_t>(wanted.indexOf('|'));
        const wordlist::Edit edit{wanted.remove('|').toStdU16String(), cursor};
        const auto result = wordlist::AdmitEdit(before.toStdU16String(), edit, {wordlist::FilterWord, 20});
        auto shown = QString::fromStdU16String(result.text);
        QCOMPARE(shown.insert(static_cast<int>(result.cursor), '|'), admitted);
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
        QVERIFY(!ObstacleToPuzzle(Words{u"\u00DF", u"A 1"}));
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
