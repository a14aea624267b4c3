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
    }

    void SpellsLettersForTheGrid()
    {
        QString letters;
        for (const char16_t character : std::u16string(u"@AZ[`az{\u00BF\u00C0\u00D7\u00DE\u00FF\u0100"
                                                       u"\u0152\u0153\u0160\u0161\u0178\u017D\u017E\u0192"))
            letters += wordlist::GridLetter(character).value_or('.');
        QCOMPARE(letters, ".AZ..AZ..A.TY.OOSSYZZF");
    }

    void FindsWhatKeepsAListFromAPuzzle()
    {
        const std::u16string twenty(20, u'A');
        for (const Words& words : {Words{}, Words(40, twenty), Words{u"\u00DF", u"A 1", u"  "}})
            QVERIFY(!wordlist::ObstacleToPuzzle(words));
        Words list(38, u"CAT");
        list.insert(list.end(), {twenty + u"B", u" 12 ", u"DOG", u"3"});
        const auto obstacle = wordlist::ObstacleToPuzzle(list);
        QVERIFY(obstacle && obstacle->surplus == Words({u"DOG", u"3"}) && obstacle->tooLong == Words{twenty + u"B"} &&
                obstacle->letterless == Words({u" 12 ", u"3"}));
    }
};

QTEST_APPLESS_MAIN(WordListTest)
#include "wordlist_test.moc"
