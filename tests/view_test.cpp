#include "tests/support/puzzles.h"
#include "view/grid_drawing.h"
#include "view/printed_page.h"

#include <QtTest>

#include <array>
#include <cmath>

namespace {

generator::PuzzleWorkspace Grid(int size)
{
    generator::PuzzleWorkspace workspace(FixedRandom(1));
    workspace.PuzzleSize = size;
    workspace.FillPuzzle();
    return workspace;
}

/// A printer that keeps font sizes or rounds them to whole points. A character is a little wider than half of the
/// font size, to give fractions.
view::PageMetrics Printer(double width = 11906, bool wholePoints = false)
{
    return {width, [wholePoints](const auto& font) { return wholePoints ? std::round(font.size) : font.size; },
            [](const auto& font, auto text) { return static_cast<double>(text.size()) * (font.size * 10 + 0.25); }};
}

} // namespace

class ViewTest : public QObject {
    Q_OBJECT

private slots:
    void LaysOutTheGrid()
    {
        struct Row {
            int size, row, column;
            double x, y;
        };
        for (const auto& [size, row, column, x, y] :
             {Row{16, 1, 1, 390.75, 391}, Row{16, 2, 2, 781.5, 782}, Row{16, 6, 9, 3516.75, 2344},
              Row{10, 1, 1, 625.2F, 625}, Row{30, 30, 30, 6252, 6252}}) {
            const auto grid = Grid(size);
            const auto cells = view::LayOutGrid(grid, 7815);
            QCOMPARE(cells.size(), static_cast<std::size_t>(size * size));
            const auto& cell = cells.at(static_cast<std::size_t>((row - 1) * size + column - 1));
            QVERIFY(cell.x == x && cell.y == y && cell.letter == grid.PuzzleArray(row, column));
        }
        QVERIFY(view::LayOutGrid(generator::PuzzleWorkspace(), 7815).empty());
    }

    /// For each size: the font size, the step between cells, and the places of the first column and the last row.
    /// Half a twip of the margin rounds to the even number: (11906 - 8631) / 2 = 1637.5.
    void LaysOutThePagesGrid()
    {
        struct Row {
            int size;
            double points, step, left, last;
        };
        for (const auto& [size, points, step, left, last] :
             {Row{10, 14, 560, 3153, 10758}, Row{15, 14, 560, 1753, 13558}, Row{16, 13.5, 540, 1633, 13818},
              Row{21, 10.275, 411, 1638, 13938}, Row{30, 7.2, 288, 1633, 14070}}) {
            const auto grid = Grid(size);
            const auto page = view::LayOutPage(Printer(), u"T", {}, grid);
            QCOMPARE(page.texts.size(), static_cast<std::size_t>(size * size + 1));
            for (int cell = 0; cell < size * size; ++cell) {
                const auto& text = page.texts.at(static_cast<std::size_t>(cell + 1));
                QVERIFY(text.x == left + cell % size * step && text.y == 5718 + cell / size * step);
                QVERIFY(text.text.front() == grid.PuzzleArray(cell / size + 1, cell % size + 1));
            }
            QCOMPARE(page.texts.back().y, last);
            QCOMPARE(static_cast<float>(page.texts.back().font.size), static_cast<float>(points));
        }
        // The printer gives 14 points instead of 14.4. The step does not change.
        const auto rounded = view::LayOutPage(Printer(11906, true), u"T", {}, Grid(15));
        QCOMPARE(rounded.texts[2].x - rounded.texts[1].x, 576.0);
    }

    void LaysOutTitleWordsAndBox()
    {
        Words list;
        for (std::size_t i = 0; i < 40; ++i)
            list.emplace_back(i % 20 + 1, u'W');
        for (const double width : {11906.0, 12240.0, 300.0}) {
            const auto page = view::LayOutPage(Printer(width, width == 12240), u"Animals", list, Grid(10));
            const auto& title = page.texts[0];
            QVERIFY(title.x == width / 2 - 910.875 && title.y == 720 && title.text == u"Animals");
            QVERIFY(title.font == (view::PageFont{title.font.name, 26, true, true}));
            QCOMPARE(title.font.name, std::u16string(u"Times New Roman"));
            QCOMPARE(page.texts.back().font.name, std::u16string(u"Courier New"));
            // The widest words of the first three columns have 10, 20 and 10 letters of 110.25 twips.
            const std::array<double, 4> columns{720, 2902, 6187, 8369};
            for (std::size_t i = 0; i < list.size(); ++i) {
                const auto& text = page.texts.at(i + 1);
                QVERIFY(text.text == list[i] && text.font == (view::PageFont{title.font.name, 11}));
                QVERIFY(text.x == columns.at(i / 10) && text.y == 1800 + static_cast<double>(i % 10) * 330);
            }
            const auto& [left, top, right, bottom] = page.box;
            QVERIFY(left == 504 && top == 1584 && right == width - 504 && bottom == 5214.3);
        }
    }

    void FitsEverySheet()
    {
        for (const auto& [width, height, scale] : std::initializer_list<std::array<double, 3>>{
                 {11900, 16840, 1}, {12240, 15840, 1}, {16840, 23820, 1}, {8316, 11900, 0.7}, {23820, 7910, 0.5}})
            QCOMPARE(view::ScaleForSheet(width, height), scale);
    }
};

QTEST_APPLESS_MAIN(ViewTest)
#include "view_test.moc"
