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

    /// Where a page stands on its paper, in the page's own twips.
    struct Places {
        QPageSize::PageSizeId paper;
        int size;
        double scale, title, left, step;
    };

    /// The layout's own test checks every number. This one compares some of them with what a PDF reader finds.
    static void PrintsWhereItShould(const Places& at)
    {
        generator::RandomSource random = FixedRandom(8);
        const Words list = RandomWords(random, 11, 7);
        generator::PuzzleWorkspace grid(random);
        grid.PuzzleSize = at.size;
        grid.FillPuzzle();
        const QTemporaryDir folder;
        const QFileInfo file(folder.filePath("page.pdf"));
        QPrinter printer(QPrinter::HighResolution);
        printer.setPageSize(QPageSize(at.paper));
        printer.setPageOrientation(at.size == 21 ? QPageLayout::Landscape : QPageLayout::Portrait);
        printer.setOutputFileName(file.filePath());
        QVERIFY(PrintPage(printer, "Animals", list, grid));
        printer.setOutputFileName("/dev/null");
        QVERIFY(!PrintPage(printer, "Animals", list, grid)); // not a file

        const Pdf page{file};
        QVERIFY(page.pages == 1 && page.width < page.height); // always upright
        ShowsTheBox(file, at.scale);
        QCOMPARE(page.words.size(), 1 + list.size() + static_cast<std::size_t>(at.size * at.size));
        const auto stands = [&](const std::u16string& text, double left, double top) {
            return std::ranges::any_of(page.words, [&](const Pdf::Word& word) {
                return word.text == QString::fromStdU16String(text) && std::abs(word.left / at.scale - left) <= 0.5 &&
                       std::abs(word.top / at.scale - top) <= 0.5;
            });
        };
        QVERIFY(stands(u"Animals", at.title, 720));
        QVERIFY(stands(list[0], 720, 1800) && stands(list[9], 720, 4770));
        for (const int cell : {0, at.size - 1, at.size * at.size - 1})
            QVERIFY(stands({static_cast<char16_t>(grid.PuzzleArray(cell / at.size + 1, cell % at.size + 1))},
                           at.left + cell % at.size * at.step, 5718 + cell / at.size * at.step));
    }

private slots:
    void PrintsOnPaper()
    {
        for (const Places& at : {Places{QPageSize::A4, 16, 1, 5054, 1630, 540},
                                 Places{QPageSize::Letter, 21, 1, 5224, 1804, 411}, // set to landscape
                                 Places{QPageSize::A5, 10, 0.7071, 5044, 3140, 560}})
            PrintsWhereItShould(at);
    }
};

QTEST_MAIN(PageTest)
#include "page_test.moc"
