#include "generator/workspace.h"
#include "tests/support/puzzles.h"

#include <QtTest>

#include <array>
#include <functional>
#include <map>
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
    const double total = std::accumulate(counts.begin(), counts.end(), 0.0);
    const double weight = std::accumulate(weights.begin(), weights.end(), 0.0);
    double sum = 0;
    for (std::size_t i = 0; i < counts.size(); ++i) {
        const double expected = total * weights[i] / weight;
        sum += (counts[i] - expected) * (counts[i] - expected) / expected;
    }
    return sum;
}

// The 99.9 % quantiles of the chi-square distribution for 7, 9 and 25 degrees of freedom.
constexpr double Limit7 = 24.32;
constexpr double Limit9 = 27.88;
constexpr double Limit25 = 52.62;

/// The bounds rule in its long form: what keeps a word of length L from starting at (R, C) in a grid of size
/// S.
const std::array<std::function<bool(int R, int C, int L, int S)>, 8> FitsNot{
    [](int R, int, int L, int S) { return R + L > S; },
    [](int R, int, int L, int) { return R - L < 1; },
    [](int, int C, int L, int S) { return C + L > S; },
    [](int, int C, int L, int) { return C - L < 1; },
    [](int R, int C, int L, int S) { return R + L > S || C + L > S; },
    [](int R, int C, int L, int S) { return R + L > S || C - L < 1; },
    [](int R, int C, int L, int S) { return R - L < 1 || C + L > S; },
    [](int R, int C, int L, int) { return R - L < 1 || C - L < 1; },
};

} // namespace

class GeneratorTest : public QObject {
    Q_OBJECT

private slots:
    void SizesTheGrid()
    {
        struct Row {
            std::size_t words, length, rest; // so many words of one length, and one more of the rest
            int size;
        };
        for (const auto& [words, length, rest, size] :
             std::initializer_list<Row>{{0, 0, 0, 10},
                                        {6, 9, 3, 10},
                                        {6, 9, 4, 11},
                                        {7, 9, 6, 11}, // 57, 58 and 69 letters
                                        {7, 9, 7, 12},
                                        {28, 16, 0, 28},
                                        {30, 16, 0, 29},
                                        {30, 16, 1, 30},
                                        {40, 20, 0, 30},
                                        {1, 9, 0, 10},
                                        {1, 10, 0, 12}, // a word needs a grid larger than itself
                                        {11, 20, 0, 22}}) {
            Words list(words, std::u16string(length, u'A'));
            if (rest > 0)
                list.emplace_back(rest, u'B');
            PuzzleWorkspace workspace(FixedRandom(1));
            workspace.LoadWordsArray(Words(40, u"ABCDEFGHIJKLMNOPQRST")); // must leave no trace
            workspace.ClearWordsArray();
            workspace.LoadWordsArray(list);
            workspace.SetPuzzleSize();
            QCOMPARE(workspace.LetterCount, static_cast<int>(words * length + rest));
            QCOMPARE(workspace.LongestWord, static_cast<int>(length));
            QCOMPARE(workspace.PuzzleSize, size);
        }
    }

    void LoadsWordsAsCapitalsAndBlanks()
    {
        PuzzleWorkspace workspace(FixedRandom(1));
        Words words{u"Ice cream", u"\u00C9t\u00E9-1", u"ABCDEFGHIJKLMNOPQRSTUVW"};
        words.resize(45, u"X");
        workspace.LoadWordsArray(words);
        const auto stored = [&](int word) {
            std::string text;
            for (int slot = 1; slot <= 20 && workspace.WordsArray(word, slot) != generator::Empty; ++slot)
                text += workspace.WordsArray(word, slot);
            return text;
        };
        QCOMPARE(stored(1), std::string("ICE CREAM"));
        QCOMPARE(stored(2), std::string("ETE  "));
        QCOMPARE(stored(3), std::string("ABCDEFGHIJKLMNOPQRST"));
        QCOMPARE(workspace.LetterCount, 9 + 5 + 20 + 37);
        QCOMPARE(workspace.LongestWord, 20);
        workspace.CurrentWord = 3;
        workspace.DetermineWordLength();
        QCOMPARE(workspace.WordLength, 23);
        workspace.LoadWordsArray({});
        workspace.DetermineWordLength();
        QCOMPARE(workspace.WordLength, 0);
    }

    void ClearsAndFillsOnlyTheGrid()
    {
        PuzzleWorkspace workspace(FixedRandom(2));
        for (int row = 0; row <= 30; ++row)
            for (int column = 0; column <= 30; ++column)
                workspace.PuzzleArray(row, column) = '#';
        workspace.PuzzleSize = 12;
        workspace.Direction = 5;
        workspace.WordFits = false;
        workspace.Reset();
        QCOMPARE(workspace.Direction, 0);
        QVERIFY(workspace.WordFits);
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
                        QCOMPARE(workspace.WordFits,
                                 !FitsNot.at(static_cast<std::size_t>(direction - 1))(
                                     workspace.CurrentRow, workspace.CurrentColumn, length, size));
                    }
    }

    void FindsClashes()
    {
        struct Row {
            std::string row; // the grid's third, which the word enters at column 2; '.' is empty
            std::u16string word;
            bool fits;
        };
        for (const auto& [row, word, fits] :
             std::initializer_list<Row>{{"..........", u"CAT", true},  // free
                                        {"..A.......", u"CAT", true},  // one cell shared
                                        {"..B.......", u"CAT", false}, // another letter
                                        {".CA.......", u"CAT", false}, // two cells shared
                                        {".CAT......", u"CAT", false}, // on its own twin
                                        {".C........", u"C", true},
                                        {"...B......", u"C AT", false}, // blanks take no cell: T comes here
                                        {"....B.....", u"C AT", true},
                                        {".ZZZ......", u"   ", true}}) {
            PuzzleWorkspace workspace(FixedRandom(1));
            workspace.LoadWordsArray(Words{word});
            workspace.PuzzleSize = 10;
            for (int column = 1; column <= 10; ++column)
                if (const char cell = row.at(static_cast<std::size_t>(column - 1)); cell != '.')
                    workspace.PuzzleArray(3, column) = cell;
            const auto before = workspace.PuzzleArray;
            workspace.PseudoWord = 1;
            workspace.PseudoRow = 3;
            workspace.PseudoColumn = 2;
            workspace.Direction = 3;
            workspace.PseudoLoadPuzzleArray();
            QVERIFY2(workspace.PseudoFits == fits, row.c_str());
            QVERIFY(workspace.PuzzleArray == before && workspace.CurrentRow == 0);
        }
    }

    void DrawsInTheStatedOrder()
    {
        int readings = 0;
        RandomSource random([&readings] { return static_cast<std::uint64_t>(++readings); });
        PuzzleWorkspace workspace(random);
        workspace.PuzzleSize = 17;
        workspace.WordLength = 0; // fits at the first draw
        workspace.InsertionPointAndDirection();
        QCOMPARE(readings, 3); // one at the start, one before the direction, one before the start cell
        readings = 1;
        random.Reseed();
        QCOMPARE(workspace.Direction, 1 + random.DrawBelow(8));
        random.Reseed();
        QCOMPARE(workspace.CurrentRow, 1 + random.DrawBelow(17));
        QCOMPARE(workspace.CurrentColumn, 1 + random.DrawBelow(17));
        workspace.FillPuzzle();
        QCOMPARE(readings, 3);
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
        constexpr int Size = 10;
        PuzzleWorkspace workspace(FixedRandom(20261122));
        workspace.PuzzleSize = Size;
        workspace.WordLength = 1;
        std::vector<double> directions(8), rows(Size), columns(Size), directionWeights(8), lineWeights(Size);
        for (int start = 0; start < Size * Size; ++start)
            for (std::size_t direction = 0; direction < 8; ++direction)
                if (!FitsNot.at(direction)(start / Size + 1, start % Size + 1, 1, Size)) {
                    ++directionWeights[direction];
                    ++lineWeights[static_cast<std::size_t>(start / Size)]; // columns have the same by symmetry
                }
        for (int i = 0; i < 200'000; ++i) {
            workspace.InsertionPointAndDirection();
            ++directions[static_cast<std::size_t>(workspace.Direction - 1)];
            ++rows[static_cast<std::size_t>(workspace.CurrentRow - 1)];
            ++columns[static_cast<std::size_t>(workspace.CurrentColumn - 1)];
        }
        const double direction = ChiSquare(directions, directionWeights);
        const double row = ChiSquare(rows, lineWeights);
        const double column = ChiSquare(columns, lineWeights);
        std::vector<double> letters(26);
        for (int grid = 0; grid < 500; ++grid) {
            workspace.ClearPuzzleArray();
            workspace.FillPuzzle();
            for (const auto& line : GridRows(workspace))
                for (const char c : line)
                    ++letters[static_cast<std::size_t>(c - 'A')];
        }
        const double letter = ChiSquare(letters, std::vector<double>(26, 1.0));
        qInfo("chi-square: direction %.1f, row %.1f, column %.1f, letter %.1f", direction, row, column, letter);
        QVERIFY(direction < Limit7 && row < Limit9 && column < Limit9 && letter < Limit25);
    }

    /// The same clock and list give the same puzzle everywhere; a change of any rule or draw shows here.
    void PinsTheGrid()
    {
        const Words words{u"Acorn", u"Badger", u"Fern", u"Ice cream", u"Oak"};
        QCOMPARE(GridRows(MakePuzzle(words, FixedRandom(42))),
                 (std::vector<std::string>{"PSQVSPEDWI", "IJAZRAMZCE", "MRKVCRKEZG", "UEFOAVCXNC", "RARLERDFZJ",
                                           "ENVNEHFKXG", "GFVAWNNISZ", "DBMDOECRQH", "AYYOAKXYET", "BCKAPITQWF"}));
        // A list of many misses and restarts that outgrows its first size, with words that fill all their
        // slots.
        RandomSource random = FixedRandom(7);
        Words crowded = RandomWords(random, 12, 15);
        for (const auto& word : RandomWords(random, 12, 20))
            crowded.push_back(word);
        const PuzzleWorkspace workspace = MakePuzzle(crowded, random);
        QCOMPARE(workspace.PuzzleSize, 29); // from 28
        QCOMPARE(GridRows(workspace).front(), std::string("VBFTMPBUHAZZONSSGDJMEFVHJLFAL"));
        QCOMPARE(GridRows(workspace).back(), std::string("MVDDSCTWBYWROZLNVHUJNXASWOSIK"));
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
        std::map<PuzzleWorkspace::Arrangement, int> arranged;
        RandomSource random = FixedRandom(5);
        for (const int letters : {26, 26, 2, 1}) {
            const Words words = RandomWords(random, 40, 20, letters);
            const PuzzleWorkspace workspace = MakePuzzle(words, random);
            ++arranged[workspace.Arranged];
            QCOMPARE(FaultOf(Solved(workspace, words)), std::string());
        }
        QVERIFY(arranged[PuzzleWorkspace::Arrangement::Dense] > 0);
    }

    void LanesHoldEveryList()
    {
        RandomSource random = FixedRandom(6);
        for (int list = 0; list < 60; ++list) {
            const Words words = RandomWords(random, 40, list % 3 == 0 ? 20 : 1 + random.DrawBelow(20));
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
