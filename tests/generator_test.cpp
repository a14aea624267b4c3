#include "generator/workspace.h"
#include "tests/support/puzzles.h"

#include <QtTest>

#include <array>
#include <map>

using generator::PuzzleWorkspace;
using generator::RandomSource;

namespace {

PuzzleWorkspace MakePuzzle(const Words& words, RandomSource random)
{
    PuzzleWorkspace workspace(std::move(random));
    workspace.LoadWordsArray(words);
    workspace.LoadPuzzleArray();
    return workspace;
}

} // namespace

class GeneratorTest : public QObject {
    Q_OBJECT

private slots:
    void SizesTheGrid()
    {
        // A number of words, their length, the length of one more word, and the expected size. 57 letters fit
        // 10 x 10 and 69 fit 11 x 11. The grid must be larger than its longest word.
        using Row = std::array<int, 4>;
        for (const auto& [count, length, rest, size] :
             {Row{0, 0, 0, 10}, Row{6, 9, 3, 10}, Row{6, 9, 4, 11}, Row{7, 9, 6, 11}, Row{7, 9, 7, 12},
              Row{28, 16, 0, 28}, Row{30, 16, 0, 29}, Row{30, 16, 1, 30}, Row{40, 20, 0, 30}, Row{1, 9, 0, 10},
              Row{1, 10, 0, 12}, Row{11, 20, 0, 22}}) {
            Words list(static_cast<std::size_t>(count), std::u16string(static_cast<std::size_t>(length), u'A'));
            if (rest > 0)
                list.emplace_back(rest, u'B');
            PuzzleWorkspace workspace(FixedRandom(1));
            workspace.LoadWordsArray(list);
            workspace.SetPuzzleSize();
            QCOMPARE(workspace.PuzzleSize, size);
        }
    }

    void LoadsWordsAsCapitalsAndBlanks()
    {
        PuzzleWorkspace workspace(FixedRandom(1));
        Words words{u"Ice cream", u"\u00C9t\u00E9-1", u"ABCDEFGHIJKLMNOPQRSTUVW"};
        words.resize(45, u"X"); // five more than there is space for
        workspace.LoadWordsArray(words);
        std::string stored;
        for (int i = 0; i < 60; ++i)
            stored += workspace.WordsArray(1 + i / 20, 1 + i % 20);
        std::ranges::replace(stored, generator::Empty, '.');
        QCOMPARE(stored, std::string("ICE CREAM...........ETE  ...............ABCDEFGHIJKLMNOPQRST"));
        QVERIFY(workspace.LetterCount == 9 + 5 + 20 + 37 && workspace.LongestWord == 20);
    }

    /// The window makes all its puzzles in one workspace.
    void KeepsNothingOfTheLastPuzzle()
    {
        PuzzleWorkspace workspace = MakePuzzle(Words(30, u"ABCDEFGHIJKL"), FixedRandom(2));
        workspace.Reset();
        QVERIFY(workspace.WordsArray == PuzzleWorkspace().WordsArray);
        QVERIFY(workspace.PuzzleArray == PuzzleWorkspace().PuzzleArray);
        const Words words{u"Oak"};
        workspace.LoadWordsArray(words);
        workspace.LoadPuzzleArray();
        QCOMPARE(workspace.PuzzleSize, 10);
        QCOMPARE(FaultOf(Solved(workspace, words)), std::string());
    }

    /// Every start and direction that keeps a word inside the grid is equally likely.
    void DrawsPlacesEvenly()
    {
        PuzzleWorkspace workspace(FixedRandom(20261122));
        workspace.PuzzleSize = 10;
        workspace.WordLength = 1;
        std::map<std::array<int, 3>, int> counts;
        for (int i = 0; i < 200'000; ++i) {
            workspace.InsertionPointAndDirection();
            ++counts[{workspace.Direction, workspace.CurrentRow, workspace.CurrentColumn}];
        }
        // One more cell must follow the word: 90 starts in each straight direction, 81 in each diagonal one.
        QCOMPARE(counts.size(), 4 * 90U + 4 * 81U);
        double sum = 0;
        for (const double expected = 200'000 / 684.0; const auto& [place, count] : counts)
            sum += (count - expected) * (count - expected) / expected;
        qInfo("chi-square: %.1f", sum);
        QVERIFY(sum < 803.0); // the 99.9 % quantile for 683 degrees of freedom
    }

    /// The same clock and list give the same puzzle on every platform. A change to any rule or draw changes a grid.
    void PinsTheGrid()
    {
        const auto pin = [](const Words& words, const RandomSource& random, const QString& rows) {
            const PuzzleWorkspace workspace = MakePuzzle(words, random);
            QCOMPARE(QString::fromStdString(GridRows(workspace).front() + ' ' + GridRows(workspace).back()), rows);
            QCOMPARE(FaultOf(Solved(workspace, words)), std::string());
        };
        pin({u"Acorn", u"Badger", u"Fern", u"Ice cream", u"Oak"}, FixedRandom(42), "PSQVSPEDWI BCKAPITQWF");
        // Many misses and restarts, a grid that has to grow, and words that fill all their slots.
        RandomSource random = FixedRandom(7);
        Words words = RandomWords(random, 12, 15);
        std::ranges::copy(RandomWords(random, 12, 20), std::back_inserter(words));
        pin(words, random, "VBFTMPBUHAZZONSSGDJMEFVHJLFAL MVDDSCTWBYWROZLNVHUJNXASWOSIK");
        words = RandomWords(random, 40, 20); // the dense arrangement places this list and the next
        for (std::size_t i = 0; i <= 20; ++i)
            words[i].replace((20 - i) / 2, i, i, u' '); // 0 to 20 blanks inside
        pin(words, random, "WRBIGKEPGOCQFGMDYAGADKDUZYOZMX QJJWCIDHVNRTRDPXATNFKFBLPFWNOP");
        words = RandomWords(random, 40, 19, 2);
        pin(words, random, "YUMNXBAABAABABABABABBABBWKOCHW RFCLQJBABAABAABAAABAAABAASJJPY");
        random = FixedRandom(12478);
        words = RandomWords(random, 40, 20); // every dense pass fails, so the words go into lanes
        pin(words, random, "CLEGBMWXJFFRAUHRIAJCSYGDVIFCQK VWUSIGMXSBIGKWNCFGXECJDHERORYR");
        pin(Words(40, std::u16string(20, u'A')), random,
            "ZAAAAAAAAAAAAAAAAAAAAEIVBOZAXU JNAAAAAAAAAAAAAAAAAAAABJTOAMRQ");
    }

    void HidesEveryWord()
    {
        const int lists = std::max(qEnvironmentVariableIntValue("GLYPHGROVE_LISTS"), 1500);
        RandomSource random = FixedRandom(99);
        for (int list = 0; list < lists; ++list) {
            const Words words = AnyList(random);
            const PuzzleWorkspace workspace = MakePuzzle(words, random);
            const std::string fault = FaultOf(Solved(workspace, words));
            QVERIFY2(fault.empty(), qPrintable(QString("list %1: ").arg(list) + fault.c_str()));
            random.Reseed();
        }
    }

    void LanesHoldEveryList()
    {
        RandomSource random = FixedRandom(6);
        for (int list = 0; list < 60; ++list) {
            Words words = RandomWords(random, 40, list % 3 == 0 ? 20 : 1 + random.DrawBelow(20));
            words.front() = std::u16string(static_cast<std::size_t>(list % 21), u'-'); // blanks only
            PuzzleWorkspace workspace(random);
            workspace.LoadWordsArray(words);
            workspace.PuzzleSize = generator::MaxPuzzleSize;
            workspace.ArrangeInLanes();
            workspace.FillPuzzle();
            QCOMPARE(FaultOf(Solved(workspace, words)), std::string());
            random.Reseed();
        }
    }
};

QTEST_APPLESS_MAIN(GeneratorTest)
#include "generator_test.moc"
