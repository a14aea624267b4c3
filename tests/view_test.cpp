#include "tests/support/puzzles.h"
#include "view/grid_drawing.h"
#include "view/printed_page.h"
#include "view/rounding.h"

#include <QtTest>

#include <algorithm>
#include <limits>

namespace {

/// A printer that notes what it is asked: exact, or odd where a test says so.
class Recorder : public view::PagePrinter {
public:
    struct Text {
        double x, y;
        std::u16string text;
    };

    double Width = 11906;
    bool WholePoints = false; ///< rounds font sizes to whole points
    int CallsUntilFailure = std::numeric_limits<int>::max();

    QStringList Fonts;
    std::vector<Text> Texts;
    std::vector<std::array<double, 4>> Lines;
    int Calls = 0;
    int Ended = 0;

    std::optional<double> PageWidth() override { return Answer(Width); }
    std::optional<double> SetFont(const view::PageFont& font) override
    {
        Size = WholePoints ? std::round(font.size) : font.size;
        Fonts += QString("%1 %2%3%4")
                     .arg(font.name)
                     .arg(font.size)
                     .arg(font.bold ? " bold" : "", font.italic ? " italic" : "");
        return Answer(Size);
    }
    /// Every character is half as wide as its font is high, and a little more, for fractions.
    std::optional<double> Measure(std::u16string_view text) override
    {
        return Answer(static_cast<double>(text.size()) * (Size * 10 + 0.25));
    }
    bool Write(view::PagePoint position, std::u16string_view text) override
    {
        Texts.push_back({position.x, position.y, std::u16string(text)});
        return Answer(0).has_value();
    }
    bool DrawLine(view::PagePoint from, view::PagePoint to) override
    {
        Lines.push_back({from.x, from.y, to.x, to.y});
        return Answer(0).has_value();
    }
    bool EndDocument() override
    {
        ++Ended;
        return Answer(0).has_value();
    }

private:
    std::optional<double> Answer(double value)
    {
        return ++Calls >= CallsUntilFailure ? std::nullopt : std::optional(value);
    }
    double Size = 0;
};

generator::PuzzleWorkspace Grid(int size)
{
    generator::PuzzleWorkspace workspace(FixedRandom(1));
    workspace.PuzzleSize = size;
    workspace.FillPuzzle();
    return workspace;
}

} // namespace

class ViewTest : public QObject {
    Q_OBJECT

private slots:
    void RoundsHalvesToEven()
    {
        for (const auto& [value, rounded] : std::initializer_list<std::pair<double, double>>{{0.5, 0},
                                                                                             {1.5, 2},
                                                                                             {2.5, 2},
                                                                                             {-0.5, 0},
                                                                                             {-1.5, -2},
                                                                                             {-2.5, -2},
                                                                                             {2344.5, 2344},
                                                                                             {1.4, 1},
                                                                                             {-1.4, -1},
                                                                                             {1.6, 2}})
            QCOMPARE(view::RoundHalfToEven(value), rounded);
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

    void ComposesTheGrid_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<double>("step");
        QTest::addColumn<QString>("fonts"); // after the title's and the words'
        QTest::addColumn<double>("left");
        QTest::addColumn<double>("lastRow");
        // Halves of the margins go to the even neighbour: (11906 - 8631) / 2 = 1637.5.
        QTest::newRow("10") << 10 << 560.0 << "Courier New 21.6|Courier New 14" << 3153.0 << 10758.0;
        QTest::newRow("15") << 15 << 560.0 << "Courier New 14.4|Courier New 14" << 1753.0 << 13558.0;
        QTest::newRow("16") << 16 << 540.0 << "Courier New 13.5" << 1633.0 << 13818.0;
        QTest::newRow("17") << 17 << 508.0 << "Courier New 12.7" << 1635.0 << 13846.0;
        QTest::newRow("21") << 21 << 411.0 << "Courier New 10.275" << 1638.0 << 13938.0;
        QTest::newRow("25") << 25 << 346.0 << "Courier New 8.65" << 1628.0 << 14022.0;
        QTest::newRow("30") << 30 << 288.0 << "Courier New 7.2" << 1633.0 << 14070.0;
    }

    void ComposesTheGrid()
    {
        QFETCH(int, size);
        QFETCH(double, step);
        QFETCH(QString, fonts);
        QFETCH(double, left);
        QFETCH(double, lastRow);
        Recorder printer;
        const auto grid = Grid(size);
        QVERIFY(view::PrintPage(printer, u"T", {}, grid));
        QCOMPARE(printer.Ended, 1);
        QCOMPARE(printer.Fonts.mid(0, 2), QStringList({"Times New Roman 26 bold italic", "Times New Roman 11"}));
        QCOMPARE(printer.Fonts.mid(2).join('|'), fonts);
        QCOMPARE(printer.Texts.size(), static_cast<std::size_t>(size * size + 1));
        for (int cell = 0; cell < size * size; ++cell) {
            const auto& text = printer.Texts.at(static_cast<std::size_t>(cell + 1));
            QCOMPARE(text.x, left + cell % size * step);
            QCOMPARE(text.y, 5718 + cell / size * step);
            QCOMPARE(text.text, std::u16string(1, static_cast<unsigned char>(
                                                      grid.PuzzleArray(cell / size + 1, cell % size + 1))));
        }
        QCOMPARE(printer.Texts.back().y, lastRow);
    }

    void ComposesTitleWordsAndBox_data()
    {
        QTest::addColumn<int>("words");
        QTest::addColumn<bool>("wholePoints");
        QTest::addColumn<double>("width");
        for (const int words : {0, 1, 10, 11, 40})
            for (const double width : {11906.0, 12240.0, 300.0})
                QTest::addRow("%d on %g", words, width) << words << (width == 12240.0) << width;
    }

    void ComposesTitleWordsAndBox()
    {
        QFETCH(int, words);
        QFETCH(bool, wholePoints);
        QFETCH(double, width);
        Recorder printer;
        printer.Width = width;
        printer.WholePoints = wholePoints;
        Words list;
        for (int i = 0; i < words; ++i)
            list.emplace_back(static_cast<std::size_t>(i % 20 + 1), u'W');
        QVERIFY(view::PrintPage(printer, u"Animals", list, Grid(10)));
        QCOMPARE(printer.Texts[0].x, width / 2 - 7 * 260.25 / 2);
        QCOMPARE(printer.Texts[0].y, 720.0);
        // The widest words of the first three columns have 10, 20 and 10 letters of 110.25 twips.
        const std::array<double, 4> columns{720, 720 + 1102 + 1080, 2902 + 2205 + 1080, 6187 + 1102 + 1080};
        for (int i = 0; i < words; ++i) {
            const auto& text = printer.Texts.at(static_cast<std::size_t>(i + 1));
            QCOMPARE(text.text, list.at(static_cast<std::size_t>(i)));
            QCOMPARE(text.x, columns.at(static_cast<std::size_t>(i / 10)));
            QCOMPARE(text.y, 1800.0 + i % 10 * 330);
        }
        const double right = width - 504;
        const std::vector<std::array<double, 4>> box{{504, 1584, right, 1584},
                                                     {right, 1584, right, 5214.3},
                                                     {right, 5214.3, 504, 5214.3},
                                                     {504, 5214.3, 504, 1584}};
        QCOMPARE(printer.Lines, box);
    }

    void FollowsASizeThatThePrinterRounds()
    {
        Recorder printer;
        printer.WholePoints = true;
        QVERIFY(view::PrintPage(printer, u"T", {}, Grid(15))); // 14.4 pt is taken as 14: no cap, the step stays
        QCOMPARE(printer.Fonts.size(), 3);
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
