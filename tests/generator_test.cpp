#include "generator/workspace.h"
#include "tests/support/puzzles.h"

#include <QtTest>

#include <array>
#include <numeric>
#include <set>

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

/// The chi-square statistic of counts against weights of any sum.
double ChiSquare(const std::vector<double>& counts, const std::vector<double>& weights)
{
    const double share = std::reduce(counts.begin(), counts.end()) / std::reduce(weights.begin(), weights.end());
    double sum = 0;
    for (std::size_t i = 0; i < counts.size(); ++i)
        if (const double expected = share * weights[i]; counts[i] != expected)
            sum += (counts[i] - expected) * (counts[i] - expected) / expected;
    return sum;
}

/// Whether a word of `length` from the cursor still has a cell of the grid after its last.
bool Fits(const PuzzleWorkspace& workspace, int length)
{
    constexpr std::array<int, 9> Down{0, 1, -1, 0, 0, 1, 1, -1, -1};
    constexpr std::array<int, 9> Right{0, 0, 0, 1, -1, 1, -1, 1, -1};
    const int row = workspace.CurrentRow + Down.at(static_cast<std::size_t>(workspace.Direction)) * length;
    const int column = workspace.CurrentColumn + Right.at(static_cast<std::size_t>(workspace.Direction)) * length;
    return row >= 1 && row <= workspace.PuzzleSize && column >= 1 && column <= workspace.PuzzleSize;
}

} // namespace

class GeneratorTest : public QObject {
    Q_OBJECT

private slots:
    void SizesTheGrid()
    {
        // So many words of one length, one more of the rest, the size that the grid gets. 57 letters are enough for
        // 10, 69 for 11; a word needs a grid larger than itself.
        using Row = std::array<int, 4>;
        for (const auto& [count, length, rest, size] :
             {Row{0, 0, 0, 10}, Row{6, 9, 3, 10}, Row{6, 9, 4, 11}, Row{7, 9, 6, 11}, Row{7, 9, 7, 12},
              Row{28, 16, 0, 28}, Row{30, 16, 0, 29}, Row{30, 16, 1, 30}, Row{40, 20, 0, 30}, Row{1, 9, 0, 10},
              Row{1, 10, 0, 12}, Row{11, 20, 0, 22}}) {
            Words list(static_cast<std::size_t>(count), std::u16string(static_cast<std::size_t>(length), u'A'));
            if (rest > 0)
                list.emplace_back(rest, u'B');
            PuzzleWorkspace workspace(FixedRandom(1));
            workspace.LoadWordsArray(Words(40, u"ABCDEFGHIJKLMNOPQRST")); // must leave no trace
            workspace.ClearWordsArray();
            workspace.LoadWordsArray(list);
            workspace.SetPuzzleSize();
            QCOMPARE(workspace.LetterCount, count * length + rest);
            QCOMPARE(workspace.LongestWord, length);
            QCOMPARE(workspace.PuzzleSize, size);
        }
    }

    void LoadsWordsAsCapitalsAndBlanks()
    {
        PuzzleWorkspace workspace(FixedRandom(1));
        Words words{u"Ice cream", u"\u00C9t\u00E9-1", u"ABCDEFGHIJKLMNOPQRSTUVW"};
        words.resize(45, u"X");
        workspace.LoadWordsArray(words);
        int word = 0;
        for (std::string stored : {"ICE CREAM", "ETE  ", "ABCDEFGHIJKLMNOPQRST"}) {
            stored.resize(20, generator::Empty);
            int slot = 0;
            ++word;
            for (const char letter : stored)
                QCOMPARE(workspace.WordsArray(word, ++slot), letter);
        }
        QCOMPARE(workspace.LetterCount, 9 + 5 + 20 + 37);
        QCOMPARE(workspace.LongestWord, 20);
        workspace.CurrentWord = 3;
        workspace.DetermineWordLength();
        QCOMPARE(workspace.WordLength, 23);
        workspace.LoadWordsArray({});
        workspace.DetermineWordLength();
        QCOMPARE(workspace.WordLength, 0);
    }

    void StartsAndResetsBlank()
    {
        using W = PuzzleWorkspace;
        const std::vector<int W::*> numbers{
            &W::CurrentWord,  &W::WordLength,   &W::Direction,   &W::CurrentRow, &W::CurrentColumn, // these are reset
            &W::PuzzleSize,   &W::LetterCount,  &W::LongestWord, &W::PseudoWord, &W::PseudoRow,
            &W::PseudoColumn, &W::PseudoLetter, &W::WordIndex,   &W::LetterIndex};
        W workspace(FixedRandom(2));
        QVERIFY(workspace.WordFits && !workspace.PseudoFits);
        for (const auto number : numbers)
            QCOMPARE(std::exchange(workspace.*number, 12), 0);
        workspace.LoadWordsArray(Words(40, u"ABCDEFGHIJKL"));
        workspace.LetterCount = 12;
        for (int cell = 0; cell < 31 * 31; ++cell)
            workspace.PuzzleArray(cell / 31, cell % 31) = '#';
        workspace.WordFits = false;
        workspace.Reset();
        QVERIFY(workspace.WordFits && workspace.WordsArray == W().WordsArray);
        for (std::size_t i = 0; i < numbers.size(); ++i)
            QCOMPARE(workspace.*numbers[i], i < 5 ? 0 : 12);
        workspace.PuzzleArray(3, 4) = '!';
        workspace.FillPuzzle();
        for (int row = 0; row <= 30; ++row)
            for (int column = 0; column <= 30; ++column) {
                const char cell = workspace.PuzzleArray(row, column);
                const bool inside = row >= 1 && row <= 12 && column >= 1 && column <= 12;
                const bool kept = row == 3 && column == 4;
                QVERIFY(kept ? cell == '!' : inside ? cell >= 'A' && cell <= 'Z' : cell == '#');
            }
    }

    void KeepsTheBoundsRule()
    {
        PuzzleWorkspace workspace(FixedRandom(1));
        for (const int size : {10, 13})
            for (int start = 0; start < size * size; ++start)
                for (int direction = 1; direction <= 8; ++direction)
                    for (int length = 0; length <= size; ++length) {
                        workspace.PuzzleSize = size;
                        workspace.CurrentRow = start / size + 1;
                        workspace.CurrentColumn = start % size + 1;
                        workspace.Direction = direction;
                        workspace.WordLength = length;
                        workspace.TestWordForFit();
                        QCOMPARE(workspace.WordFits, Fits(workspace, length));
                    }
    }

    void FindsClashes()
    {
        const auto fits = [](const Words& words, const std::string& cells) { // from the word's first on, '.' is empty
            PuzzleWorkspace workspace(FixedRandom(1));
            workspace.LoadWordsArray(words);
            int column = 1;
            for (const char cell : cells)
                workspace.PuzzleArray(3, ++column) = cell == '.' ? generator::Empty : cell;
            const auto before = workspace.PuzzleArray;
            workspace.PseudoWord = 1;
            workspace.PseudoRow = workspace.Direction = 3;
            workspace.PseudoColumn = 2;
            workspace.PseudoLoadPuzzleArray();
            return workspace.PseudoFits && workspace.PuzzleArray == before && workspace.CurrentRow == 0;
        };
        QVERIFY(fits({u"CAT"}, "......"));
        QVERIFY(fits({u"CAT"}, ".A...."));
        QVERIFY(!fits({u"CAT"}, ".B...."));
        QVERIFY(!fits({u"CAT"}, "CA...."));
        QVERIFY(!fits({u"CAT"}, "CAT...")); // on its own twin
        QVERIFY(fits({u"C"}, "C....."));
        QVERIFY(!fits({u"C AT"}, "..B...")); // blanks take no cell: T comes here
        QVERIFY(fits({u"C AT"}, "...B.."));
        QVERIFY(fits({u"   "}, "ZZZ..."));
    }

    void NeverRepeatsWithinATick()
    {
        RandomSource random = FixedRandom(0);
        std::set<float> numbers;
        for (int i = 0; i < 2000; ++i) {
            random.Reseed();
            const float u = random.Draw();
            QVERIFY(u >= 0.0F && u < 1.0F);
            numbers.insert(u);
        }
        QVERIFY(numbers.size() > 1990); // 24 bits: chance alone repeats a number now and then
    }

    void DrawsEvenly()
    {
        PuzzleWorkspace workspace(FixedRandom(20261122));
        workspace.PuzzleSize = 10;
        workspace.WordLength = 1;
        std::vector<double> placements(9 * 11 * 11), legal(9 * 11 * 11), letters('Z' + 1), alphabet('Z' + 1);
        const auto count = [&workspace](auto& places) {
            ++places.at(static_cast<std::size_t>((workspace.Direction * 11 + workspace.CurrentRow) * 11 +
                                                 workspace.CurrentColumn));
        };
        for (int i = 0; i < 200'000; ++i) {
            workspace.InsertionPointAndDirection();
            count(placements);
        }
        for (int start = 0; start < 800; ++start) {
            workspace.Direction = start / 100 + 1;
            workspace.CurrentRow = start / 10 % 10 + 1;
            workspace.CurrentColumn = start % 10 + 1;
            if (Fits(workspace, 1))
                count(legal);
        }
        for (int grid = 0; grid < 500; ++grid) {
            workspace.ClearPuzzleArray();
            workspace.FillPuzzle();
            for (const auto& line : GridRows(workspace))
                for (const char letter : line)
                    ++letters.at(static_cast<std::size_t>(letter));
        }
        std::fill(alphabet.begin() + 'A', alphabet.end(), 1.0);
        const double placement = ChiSquare(placements, legal);
        const double letter = ChiSquare(letters, alphabet);
        qInfo("chi-square: placement %.1f, letter %.1f", placement, letter);
        QVERIFY(placement < 803.0 && letter < 52.62); // the 99.9 % quantiles for 683 and 25 degrees of freedom
    }

    /// The same clock and list give the same puzzle everywhere; a change of any rule or draw shows here.
    void PinsTheGrid()
    {
        const auto pin = [](const Words& words, const RandomSource& random, const QString& rows) {
            const PuzzleWorkspace workspace = MakePuzzle(words, random);
            QCOMPARE(QString::fromStdString(GridRows(workspace).front() + ' ' + GridRows(workspace).back()), rows);
        };
        pin({u"Acorn", u"Badger", u"Fern", u"Ice cream", u"Oak"}, FixedRandom(42), "PSQVSPEDWI BCKAPITQWF");
        // By the search: many misses and restarts, a first size outgrown, words that fill all their slots.
        RandomSource random = FixedRandom(7);
        Words words = RandomWords(random, 12, 15);
        std::ranges::copy(RandomWords(random, 12, 20), std::back_inserter(words));
        pin(words, random, "VBFTMPBUHAZZONSSGDJMEFVHJLFAL MVDDSCTWBYWROZLNVHUJNXASWOSIK");
        words = RandomWords(random, 40, 20); // densely, this one and the next
        for (std::size_t i = 0; i <= 20; ++i)
            words[i].replace((20 - i) / 2, i, i, u' '); // blanks inside, up to blanks alone
        pin(words, random, "WRBIGKEPGOCQFGMDYAGADKDUZYOZMX QJJWCIDHVNRTRDPXATNFKFBLPFWNOP");
        words = RandomWords(random, 40, 19, 2);
        pin(words, random, "YUMNXBAABAABABABABABBABBWKOCHW RFCLQJBABAABAABAAABAAABAASJJPY");
        random = FixedRandom(12478);
        words = RandomWords(random, 40, 20); // no dense pass gives each a place: in lanes
        pin(words, random, "CLEGBMWXJFFRAUHRIAJCSYGDVIFCQK VWUSIGMXSBIGKWNCFGXECJDHERORYR");
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

    void ArrangesTheHardestLists()
    {
        RandomSource random = FixedRandom(5);
        for (const int letters : {26, 26, 2, 1}) {
            const Words words = RandomWords(random, 40, 20, letters);
            QCOMPARE(FaultOf(Solved(MakePuzzle(words, random), words)), std::string());
        }
    }

    void LanesHoldEveryList()
    {
        RandomSource random = FixedRandom(6);
        QString seen; // a cell of each grid: one turn or one draw that is another changes some
        for (int list = 0; list < 60; ++list) {
            Words words = RandomWords(random, 40, list % 3 == 0 ? 20 : 1 + random.DrawBelow(20));
            words.front() = std::u16string(static_cast<std::size_t>(list % 21), u'-'); // no letter to place
            PuzzleWorkspace workspace(random);
            workspace.LoadWordsArray(words);
            workspace.PuzzleSize = generator::MaxPuzzleSize;
            workspace.ArrangeInLanes();
            workspace.FillPuzzle();
            seen += workspace.PuzzleArray(1 + list % 30, 5);
            words.erase(words.begin());
            QCOMPARE(FaultOf(Solved(workspace, words)), std::string());
            random.Reseed();
        }
        QCOMPARE(seen, QString("MIPQUHZIKCWNXSLIQOZLBILCZIQLVNIGPDGKGSXRDRCVBKGLPMKDGLKIIYKT"));
    }
};

QTEST_APPLESS_MAIN(GeneratorTest)
#include "generator_test.moc"
