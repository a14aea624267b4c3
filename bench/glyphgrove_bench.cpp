#include "app/desktop/page_printer.h"
#include "driving/script.h"
#include "tests/support/puzzles.h"

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

// Measures how long it takes to make, show and print a puzzle. Compare ratios within one run: absolute times depend
// on the machine.

namespace {

void MakePuzzle(benchmark::State& state)
{
    generator::PuzzleWorkspace workspace;
    for (auto _ : state) {
        state.PauseTiming();
        const auto words = RandomWords(workspace.Random, int(state.range(0)), int(state.range(1)));
        workspace.Reset();
        state.ResumeTiming();
        workspace.LoadWordsArray(words);
        workspace.LoadPuzzleArray();
    }
}
BENCHMARK(MakePuzzle)->Args({10, 5})->Args({40, 7})->Args({40, 12})->Args({40, 20})->Unit(benchmark::kMicrosecond);

/// From the click on Create Puzzle until the puzzle window is painted.
void ShowPuzzle(benchmark::State& state)
{
    driving::Script person;
    person.Start();
    generator::RandomSource random;
    for (const auto& word : RandomWords(random, int(state.range(0)), int(state.range(1))))
        person.Step("word:" + QString::fromStdU16String(word));
    person.Run("no menu:fq"); // so that Create Puzzle asks nothing
    person.Window->show();
    auto& create = person.Control<QPushButton>("cmdCreatePuzzle");
    for (auto _ : state) {
        create.click();
        QWidget* puzzle = driving::ShownWindow("frmPuzzle");
        QApplication::processEvents();
        puzzle->repaint();
        state.PauseTiming();
        puzzle->close();
        QApplication::processEvents();
        state.ResumeTiming();
    }
}
BENCHMARK(ShowPuzzle)->Args({40, 7})->Args({40, 12})->Unit(benchmark::kMillisecond);

/// From the accepted print dialog to the finished PDF, for a 30 x 30 grid with 40 words.
void PrintPuzzle(benchmark::State& state)
{
    const QTemporaryDir folder;
    generator::PuzzleWorkspace workspace;
    const auto words = RandomWords(workspace.Random, 40, 13);
    workspace.LoadWordsArray(words);
    workspace.LoadPuzzleArray();
    for (auto _ : state) {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFileName(folder.filePath("page.pdf"));
        if (!PrintPage(printer, "Title", words, workspace))
            state.SkipWithError("not printed");
    }
}
BENCHMARK(PrintPuzzle)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    driving::PrepareDriving();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
