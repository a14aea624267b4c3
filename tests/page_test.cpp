#include "app/desktop/page_printer.h"
#include "tests/support/puzzles.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <cmath>

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
        QTest::addColumn<QPageSize::PageSizeId>("paper");
        QTest::addColumn<int>("size");
        QTest::newRow("A4") << QPageSize::A4 << 16;
        QTest::newRow("Letter, on its side") << QPageSize::Letter << 21;
        QTest::newRow("A5") << QPageSize::A5 << 10;
    }

    /// The layout's own test has every number: here what a reader finds is laid out once more, with the fonts'
    /// measures.
    void PrintsWhereItShould()
    {
        QFETCH(QPageSize::PageSizeId, paper);
        QFETCH(int, size);
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
        QVERIFY(!PrintPage(printer, "Animals", list, grid)); // it is no file

        int pages = 0;
        double width = 0;
        double height = 0;
        auto found = ReadBack(QFileInfo(path), pages, width, height);
        QVERIFY(pages == 1 && width < height); // upright
        const double scale = view::ScaleForSheet(width, height);
        QCOMPARE(scale < 1, paper == QPageSize::A5);
        ShowsTheBox(QFileInfo(path), scale);
        QCOMPARE(found.size(), 1 + list.size() + static_cast<std::size_t>(size * size));
        const auto stands = [&](const std::u16string& text, double left, double top) {
            return std::ranges::any_of(found, [&](const Placed& placed) {
                return placed.text == QString::fromStdU16String(text) &&
                       std::abs(placed.left / scale - left) <= 0.5 && std::abs(placed.top / scale - top) <= 0.5;
            });
        };
        const double titleWidth = 3446 * 0.52; // in thousandths of 26 points, bold and italic
        QVERIFY(stands(u"Animals", (width / scale - titleWidth) / 2, 720));
        for (std::size_t i = 0; i < 10; ++i)
            QVERIFY(stands(list[i], 720, 1800 + static_cast<double>(i) * 330));
        const double step = size < 16 ? 560 : std::round(8640.0 / size);
        const double left = std::nearbyint((width / scale - size * step) / 2);
        for (const int cell : {0, size - 1, size * size - 1})
            QVERIFY(stands({static_cast<char16_t>(grid.PuzzleArray(cell / size + 1, cell % size + 1))},
                           left + cell % size * step, 5718 + cell / size * step));
    }
};

QTEST_MAIN(PageTest)
#include "page_test.moc"
