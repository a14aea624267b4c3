#include "tests/support/page_recorder.h"
#include "tests/support/puzzles.h"
#include "view/grid_drawing.h"
#include "view/printed_page.h"
#include "view/rounding.h"

#include <QtTest>

#include <algorithm>
#include <map>

namespace {

generator::PuzzleWorkspace Grid(int size)
{
    generator::PuzzleWorkspace workspace(FixedRandom(1));
    workspace.PuzzleSize = size;
    workspace.FillPuzzle();
    return workspace;
}

/// The page of a grid of `size`: `left` and `last` are the places of its first column and its last row, `sizes` those
/// of the font that are tried for it.
void ComposesGrid(int size, double step, double left, double last, std::initializer_list<const char*> sizes)
{
    Recorder printer;
    const auto grid = Grid(size);
    QVERIFY(view::PrintPage(printer, u"T", {}, grid));
    QCOMPARE(printer.Ended, 1);
    std::vector<std::string> fonts{"Times New Roman 26 bold italic", "Times New Roman 11"};
    for (const char* points : sizes)
        fonts.push_back(std::string("Courier New ") + points);
    QCOMPARE(printer.Fonts, fonts);
    QCOMPARE(printer.Texts.size(), static_cast<std::size_t>(size * size + 1));
    for (int cell = 0; cell < size * size; ++cell) {
        const auto& text = printer.Texts.at(static_cast<std::size_t>(cell + 1));
        QCOMPARE(text.x, left + cell % size * step);
        QCOMPARE(text.y, 5718 + cell / size * step);
        QCOMPARE(text.text,
                 std::u16string{static_cast<char16_t>(grid.PuzzleArray(cell / size + 1, cell % size + 1))});
    }
    QCOMPARE(printer.Texts.back().y, last);
}

} // namespace

class ViewTest : public QObject {
    Q_OBJECT

private slots:
    void RoundsHalvesToEven()
    {
        const std::map<double, double> rounded{{0.5, 0},   {1.5, 2}, {2.5, 2},   {-0.5, 0}, {-1.5, -2},
                                               {-2.5, -2}, {1.4, 1}, {-1.4, -1}, {1.6, 2},  {2344.5, 2344}};
        for (const auto& [value, whole] : rounded)
            QCOMPARE(view::RoundHalfToEven(value), whole);
    }

    void LaysOutTheGrid()
    {
        const auto at = [](const generator::PuzzleWorkspace& grid, int row, int column) {
            return view::LayOutGrid(grid, 7815)
                .at(static_cast<std::size_t>((row - 1) * grid.PuzzleSize + column - 1));
        };
        const auto sixteen = Grid(16);
        QCOMPARE(at(sixteen, 1, 1).y, 391.0);
        QCOMPARE(at(sixteen, 2, 2).y, 782.0);
        QCOMPARE(at(sixteen, 2, 2).x, 781.5);
        QCOMPARE(at(sixteen, 6, 1).y, 2344.0);
        QCOMPARE(at(sixteen, 6, 9).letter, sixteen.PuzzleArray(6, 9));
        const auto ten = Grid(10);
        QCOMPARE(at(ten, 1, 1).x, static_cast<double>(625.2F));
        QCOMPARE(at(ten, 1, 1).y, 625.0);
        const auto thirty = Grid(30);
        QCOMPARE(at(thirty, 30, 30).x, 6252.0);
        QCOMPARE(at(thirty, 30, 30).y, 6252.0);
        QCOMPARE(view::LayOutGrid(thirty, 7815).size(), 900U);
        QVERIFY(view::LayOutGrid(generator::PuzzleWorkspace(), 7815).empty());
    }

    void ComposesTheGrid()
    {
        // Halves of the margins go to the even neighbour: (11906 - 8631) / 2 = 1637.5.
        ComposesGrid(10, 560, 3153, 10758, {"21.6", "14"});
        ComposesGrid(11, 560, 2873, 11318, {"19.625", "14"});
        ComposesGrid(15, 560, 1753, 13558, {"14.4", "14"});
        ComposesGrid(16, 540, 1633, 13818, {"13.5"});
        ComposesGrid(17, 508, 1635, 13846, {"12.7"});
        ComposesGrid(21, 411, 1638, 13938, {"10.275"});
        ComposesGrid(25, 346, 1628, 14022, {"8.65"});
        ComposesGrid(30, 288, 1633, 14070, {"7.2"});
    }

    void ComposesTitleWordsAndBox()
    {
        for (const std::size_t words : {0, 1, 10, 11, 40})
            for (const double width : {11906.0, 12240.0, 300.0}) {
                Recorder printer;
                printer.Width = width;
                printer.WholePoints = width == 12240.0;
                Words list;
                for (std::size_t i = 0; i < words; ++i)
                    list.emplace_back(i % 20 + 1, u'W');
                QVERIFY(view::PrintPage(printer, u"Animals", list, Grid(10)));
                QCOMPARE(printer.Texts[0].x, width / 2 - 7 * 260.25 / 2);
                QCOMPARE(printer.Texts[0].y, 720.0);
                // The widest words of the first three columns have 10, 20 and 10 letters of 110.25 twips.
                const std::array<double, 4> columns{720, 720 + 1102 + 1080, 2902 + 2205 + 1080, 6187 + 1102 + 1080};
                for (std::size_t i = 0; i < words; ++i) {
                    const auto& text = printer.Texts.at(i + 1);
                    QCOMPARE(text.text, list[i]);
                    QCOMPARE(text.x, columns.at(i / 10));
                    QCOMPARE(text.y, 1800.0 + static_cast<double>(i % 10) * 330);
                }
                const double right = width - 504;
                const double bottom = 5214.3;
                const std::vector<std::array<double, 4>> box{{504, 1584, right, 1584},
                                                             {right, 1584, right, bottom},
                                                             {right, bottom, 504, bottom},
                                                             {504, bottom, 504, 1584}};
                QCOMPARE(printer.Lines, box);
            }
    }

    void FitsEverySheet()
    {
        for (const auto& [width, height, scale] : std::initializer_list<std::array<double, 3>>{
                 {11900, 16840, 1}, {12240, 15840, 1}, {16840, 23820, 1}, {8316, 11900, 0.7}, {23820, 7910, 0.5}})
            QCOMPARE(view::ScaleForSheet(width, height), scale);
    }

    void FollowsASizeThatThePrinterRounds()
    {
        Recorder printer;
        printer.WholePoints = true;
        QVERIFY(view::PrintPage(printer, u"T", {}, Grid(15))); // 14.4 pt is taken as 14: no cap, the step stays
        QCOMPARE(printer.Fonts.size(), 3U);
        QCOMPARE(printer.Texts[2].x - printer.Texts[1].x, 576.0);
    }

    void StopsAtTheFirstFailure()
    {
        const Words words(11, u"WORD");
        Recorder whole;
        QVERIFY(view::PrintPage(whole, u"T", words, Grid(10)));
        for (int call = 1; call <= whole.Calls; ++call) {
            Recorder printer;
            printer.CallsUntilFailure = call;
            QVERIFY(!view::PrintPage(printer, u"T", words, Grid(10)));
            QCOMPARE(printer.Calls, call);
            QCOMPARE(printer.Ended, call == whole.Calls ? 1 : 0);
        }
    }
};

QTEST_APPLESS_MAIN(ViewTest)
#include "view_test.moc"
