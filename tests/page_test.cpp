#include "app/desktop/page_printer.h"
#include "tests/support/puzzles.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

struct Placed {
    QString text;
    double left, right, top; // twips
};

/// Starts a reader of the PDF file and waits for what it leaves in a file, to the last: where the program is one for
/// Windows and the reader is none, neither its end nor its output can be waited for, nor does a folder of the one
/// mean anything to the other.
template <class Complete>
void Read(const QFileInfo& file, const char* reader, QStringList arguments, const char* left, Complete complete)
{
    QProcess::startDetached(reader, arguments << file.fileName() << "page", file.path());
    QVERIFY(QTest::qWaitFor([&] { return complete(file.dir().filePath(left)); }));
}

/// What a reader of the PDF file finds on its pages.
std::vector<Placed> ReadBack(const QFileInfo& file, int& pages, double& width, double& height)
{
    QByteArray found;
    Read(file, "pdftotext", {"-bbox"}, "page", [&found](const QString& path) {
        QFile text(path);
        found = text.open(QIODevice::ReadOnly) ? text.readAll() : QByteArray();
        return found.contains("</html>");
    });
    static const QRegularExpression page("<page width=.(.*). height=.(.*).>");
    static const QRegularExpression word("<word xMin=.(.*). yMin=.(.*). xMax=.(.*). yMax=.*>(.*)</word>");
    const auto twips = [](const QRegularExpressionMatch& match, int group) {
        return match.captured(group).toDouble() * 20;
    };
    for (const QRegularExpressionMatch& match : page.globalMatch(found)) {
        ++pages;
        width = twips(match, 1);
        height = twips(match, 2);
    }
    std::vector<Placed> words;
    for (const QRegularExpressionMatch& match : word.globalMatch(found))
        words.push_back({match.captured(4), twips(match, 1), twips(match, 3), twips(match, 2)});
    return words;
}

/// Whether the box has its corner where it should, drawn half a point wide.
void ShowsTheBox(const QFileInfo& file, double scale)
{
    const auto pixels = [scale](double twips) { return qRound(twips * scale / 2); }; // at 720 in an inch
    const QPoint start(pixels(400), pixels(1480));
    QImage part;
    Read(file, "pdftoppm",
         QString("-r 720 -gray -singlefile -W 100 -H 100 -x %1 -y %2").arg(start.x()).arg(start.y()).split(' '),
         "page.pgm", [&part](const QString& path) { return part.load(path); });
    const auto dark = [&](int x, int y) { return qGray(part.pixel(x, y)) < 128; };
    QRect across, down; // what of the lines meets the part's last row and column
    for (int i = 0; i < 100; ++i) {
        across |= dark(i, 99) ? QRect(i, 0, 1, 1) : QRect();
        down |= dark(99, i) ? QRect(i, 0, 1, 1) : QRect();
    }
    for (const auto& [line, from] :
         {std::pair(across, pixels(499) - start.x()), std::pair(down, pixels(1579) - start.y())})
        QVERIFY(std::abs(line.left() - from) <= 1 && std::abs(line.width() - 5 * scale) < 1);
    QVERIFY(dark(across.left(), down.left()));
}

} // namespace

/// Prints real pages to PDF files and reads them back.
class PageTest : public QObject {
    Q_OBJECT

private slots:
    void PrintsWhereItShould_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<QPageSize::PageSizeId>("paper");
        for (const int size : {10, 15, 16, 17, 21, 25, 30})
            for (const auto paper : {QPageSize::A4, QPageSize::Letter, QPageSize::A5})
                QTest::addRow("%d, paper %d", size, paper) << size << paper;
    }

    void PrintsWhereItShould()
    {
        QFETCH(int, size);
        QFETCH(QPageSize::PageSizeId, paper);
        constexpr std::array<int, 5> Counts{0, 1, 10, 11, 40};
        const int words = Counts.at(static_cast<std::size_t>(size + paper) % Counts.size());
        generator::RandomSource random = FixedRandom(8);
        const Words list = RandomWords(random, words, 7);
        generator::PuzzleWorkspace grid(random);
        grid.PuzzleSize = size;
        grid.FillPuzzle();
        const QTemporaryDir folder;
        const QString path = folder.filePath("page.pdf");
        PagePaper device("Title");
        device.Printer().setPageSize(QPageSize(paper));
        device.Printer().setPageOrientation(size % 2 == 0 ? QPageLayout::Portrait : QPageLayout::Landscape);
        device.Printer().setOutputFileName(path);
        QVERIFY(view::PrintPage(device, u"Animals", list, grid));
        device.Printer().setOutputFileName("/dev/null");
        QVERIFY(!device.EndDocument()); // it is no file

        int pages = 0;
        double width = 0;
        double height = 0;
        auto found = ReadBack(QFileInfo(path), pages, width, height);
        QVERIFY(width < height); // upright
        const double scale = view::ScaleForSheet(width, height);
        QCOMPARE(scale < 1, paper == QPageSize::A5);
        width /= scale;
        for (Placed& placed : found)
            for (double* place : {&placed.left, &placed.right, &placed.top})
                *place /= scale;
        ShowsTheBox(QFileInfo(path), scale);
        QCOMPARE(pages, 1);
        QCOMPARE(found.size(), static_cast<std::size_t>(1 + words + size * size));
        // The reader has its own order: what counts is that each text stands where it should.
        const auto at = [&found](const QString& text, double left, double top) {
            return std::ranges::find_if(found, [&](const Placed& placed) {
                return placed.text == text && std::abs(placed.left - left) <= 0.5 &&
                       std::abs(placed.top - top) <= 0.5;
            });
        };
        const auto& title = found.front();
        QCOMPARE(title.text, "Animals");
        QVERIFY(std::abs((title.left + title.right) / 2 - width / 2) <= 0.5 && std::abs(title.top - 720) <= 0.5);
        QVERIFY(std::abs(title.right - title.left - 3446 * 0.52) <=
                1); // in thousandths of 26 points, bold and italic
        double column = 720;
        double widest = 0;
        for (int i = 0; i < words; ++i) {
            if (i > 0 && i % 10 == 0)
                column += std::exchange(widest, 0) + 1080;
            const QString text = QString::fromStdU16String(list[static_cast<std::size_t>(i)]);
            const auto word = at(text, column, 1800 + i % 10 * 330);
            QVERIFY2(word != found.end(), qPrintable(text));
            widest = std::max(widest, std::nearbyint(word->right - word->left));
        }
        const double step = size < 16 ? 560 : std::round(8640.0 / size);
        const double gridLeft = std::nearbyint((width - size * step) / 2);
        for (int cell = 0; cell < size * size; ++cell) {
            const QString letter(QLatin1Char(grid.PuzzleArray(cell / size + 1, cell % size + 1)));
            QVERIFY(at(letter, gridLeft + cell % size * step, 5718 + cell / size * step) != found.end());
        }
    }
};

QTEST_MAIN(PageTest)
#include "page_test.moc"
