#include "tests/support/puzzles.h"
#include "wordlist/letters.h"
#include "wordlist/limits.h"
#include "wordlist/order.h"
#include "wordlist/text_rule.h"

#include <QtTest>

#include <algorithm>

class WordListTest : public QObject {
    Q_OBJECT

private slots:
    void AdmitsWhatTypingItWouldGive()
    {
        struct Row {
            std::u16string text;
            std::size_t shown, selected;
            std::u16string admitted;
        };
        for (const auto& [text, shown, selected, admitted] : {
                 Row{u"@AZ[`az{1-\u00C9", 0, 0, u"AZaz"},
                 {u"  3 ice-creams! ", 0, 0, u"icecreams "},
                 {u" t", 3, 3, u" t"}, // the space replaces the selection, but the box is not empty
                 {u"CAT\nDOG\tFOX\u2028", 0, 0, u"CAT DOG FOX "},
                 {u"KLMNOPQRSTUV", 12, 2, u"KLMNOPQRST"},
                 {u"x", 20, 0, u""},
                 {u"x", 20, 1, u"x"},
                 {u"x", 25, 3, u""}, // a text from a file can be longer than the limit
                 {u"123", 0, 0, u""},
             })
            QCOMPARE(wordlist::Admit(text, shown, selected, {wordlist::TakesInWord, 20}), admitted);
    }

    void InsertsInAlphabeticalOrder()
    {
        // A word goes after equal words. A blank sorts before the letters.
        const Words words{u"ant", u"Bee", u"cat", u"Cat", u"ICE AGE", u"ICEBERG", u"\u00C9lan"};
        const std::map<std::u16string, std::size_t> places{{u"AAA", 0}, {u"BEE", 2},       {u"CAT", 4},
                                                           {u"ice", 4}, {u"ice cream", 5}, {u"zoo", 7}};
        for (const auto& [word, place] : places)
            QCOMPARE(wordlist::InsertPosition(words, word), place);
        QCOMPARE(wordlist::InsertPosition({}, u"cat"), 0U);
        QCOMPARE(wordlist::InsertPosition(Words{u"cat", u"dog", u"\u00C9lan", u"fox"}, u"elm"), 3U);
    }

    void SpellsLettersForTheGrid()
    {
        QString letters;
        for (const char16_t character : std::u16string(u"@AZ[`az{\u00BF\u00C0\u00D7\u00DE\u00FF\u0100"
                                                       u"\u0152\u0153\u0160\u0161\u0178\u017D\u017E\u0192"))
            letters += wordlist::GridLetter(character).value_or('.');
        QCOMPARE(letters, ".AZ..AZ..A.TY.OOSSYZZF");
    }

    void NamesWhatKeepsAListFromAPuzzle()
    {
        using wordlist::ObstacleToPuzzle;
        const std::u16string twenty(20, u'A');
        for (const Words& words : {Words{}, Words(40, twenty), Words{u"\u00DF", u"A 1", u"  "}})
            QVERIFY(!ObstacleToPuzzle(words));
        Words many(40, u"CAT");
        many.insert(many.end(), {u"DOG", u"FOX"});
        for (const auto& [words, text] : std::initializer_list<std::pair<Words, QString>>{
                 {{twenty + u"B", u"CAT"}, "shorten to 20 characters:\n\"AAAAAAAAAAAAAAAAAAAAB\""},
                 {{twenty + u"B", u" 12 "}, "a letter to hide:\n\" 12 \""},
                 {many, "holds 42 words, and a puzzle has room for 40. Please remove 2"},
                 {many, "\"DOG\", \"FOX\""},
                 {Words(56, u"CAT"), "\"CAT\" and 1 more"},
                 {{std::u16string(40, u'A'), std::u16string(41, u'B')}, "AA\", \"" + QString(40, 'B') + "\u2026"}}) {
            const QString obstacle = QString::fromStdU16String(ObstacleToPuzzle(words).value_or(u""));
            QVERIFY2(obstacle.contains(text), qPrintable(obstacle));
        }
        QVERIFY(ObstacleToPuzzle(Words(55, u"CAT"))->find(u" more") == std::u16string::npos);
        // The message fits on a screen even if the file has the longest words.
        QVERIFY(ObstacleToPuzzle(Words(101, std::u16string(60'000, u'\n')))->size() < 4000);
    }
};

QTEST_APPLESS_MAIN(WordListTest)
#include "wordlist_test.moc"
