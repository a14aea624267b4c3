#include "app/desktop/page_printer.h"
#include "tests/support/pdf.h"
#include "tests/support/puzzles.h"

#include <QTemporaryDir>

#include <algorithm>
#include <cmath>

namespace {

/// Checks the corner of the box. Its lines are 10 twips wide.
void ShowsTheBox(const QFileInfo& file, double scale)
{
    const auto pixels = [scale](double twips) { return qRound(twips * scale / 2); }; // at 720 dpi
    const int x = pixels(400);
    const int y = pixels(1480);
    QImage part;
    ReadPdf(file, "pdftoppm", QString("-r 720 -gray -singlefile -W 100 -H 100 -x %1 -y %2").arg(x).arg(y).split(' '),
            "page.pgm", [&part](const QString& path) { return part.load(path); });
    const auto dark = [&](double left, double top) {
        return qGray(part.pixel(pixels(left) - x, pixels(top) - y)) < 128;
    };
    QVERIFY(dark(504, 1584) && dark(504, 1650) && dark(570, 1584));
    QVERIFY(!dark(496, 1650) && !dark(512, 1650) && !dark(570, 1576) && !dark(570, 1592));
}

} // namespace

/// Prints real pages to PDF files and reads them back.
class PageTest : public QObject {
    Q_OBJECT

    /// The layout's own test checks every number. This one compares some of them with what a PDF reader finds.
    static void PrintsWhereItShould(QPageSize::PageSizeId paper, int size)
    {
        generator::RandomSource random = FixedRandom(8);
        const Words list = RandomWords(random, 11, 7);
        generator::PuzzleWorkspace grid(random);
        grid.PuzzleSize = size;
        grid.FillPuzzle();
        const QTemporaryDir folder;
        const QString path = folder.filePath("page.pdf");
        QPrinter printer(QPrinter::HighResolution);
        printer.setPageSize(QPageSize(paper));
        printer.setPageOrientation(size == 21 ? QPageLayout::Landscape : QPageLayout::Portrait);
        printer.setOutputFileName(path);
        QVERIFY(PrintPage(printer, "Animals", list, grid));
        printer.setOutputFileName("/dev/null");
        QVERIFY(!PrintPage(printer, "Animals", list, grid)); // not a file

        const Pdf page{QFileInfo(path)};
        QVERIFY(page.pages == 1 && page.width < page.height); // always upright
        const double scale = view::ScaleForSheet(page.width, page.height);
        QCOMPARE(scale < 1, paper == QPageSize::A5);
        ShowsTheBox(QFileInfo(path), scale);
        QCOMPARE(page.words.size(), 1 + list.size() + static_cast<std::size_t>(size * size));
        const auto stands = [&](const std::u16string& text, double left, double top) {
            return std::ranges::any_of(page.words, [&](const Pdf::Word& word) {
                return word.text == QString::fromStdU16String(text) && std::abs(word.left / scale - left) <= 0.5 &&
                       std::abs(word.top / scale - top) <= 0.5;
            });
        };
        const double titleWidth = 3446 * 0.52; // 3446 thousandths of the font size, 26 points
        QVERIFY(stands(u"Animals", (page.width / scale - titleWidth) / 2, 720));
        for (std::size_t i = 0; i < 10; ++i)
            QVERIFY(stands(list[i], 720, 1800 + static_cast<double>(i) * 330));
        const double step = size < 16 ? 560 : std::round(8640.0 / size);
        const double left = std::nearbyint((page.width / scale - size * step) / 2);
        for (const int cell : {0, size - 1, size * size - 1})
            QVERIFY(stands({static_cast<char16_t>(grid.PuzzleArray(cell / size + 1, cell % size + 1))},
                           left + cell % size * step, 5718 + cell / size * step));
    }

private slots:
    void PrintsOnA4() { PrintsWhereItShould(QPageSize::A4, 16); }
    void PrintsOnLetter() { PrintsWhereItShould(QPageSize::Letter, 21); } // set to landscape
    void PrintsOnA5() { PrintsWhereItShould(QPageSize::A5, 10); }
};

QTEST_MAIN(PageTest)
#include "page_test.moc"
