#include "app/desktop/page_printer.h"
#include "driving/script.h"

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

// How long a puzzle takes to make, to show and to print. The absolute times are this machine's; what to
// compare are the ratios within one run.

namespace {

std::vector<std::u16string> RandomWords(generator::RandomSource& random, std::int64_t count, std::int64_t length)
{
    std::vector<std::u16string> words(static_cast<std::size_t>(count));
    for (auto& word : words)
        for (std::int64_t i = 0; i < length; ++i)
            word += static_cast<char16_t>('A' + random.DrawBelow(26));
    return words;
}

void MakePuzzle(benchmark::State& state)
{
    generator::PuzzleWorkspace workspace;
    for (auto _ : state) {
        state.PauseTiming();
        const auto words = RandomWords(workspace.Random, state.range(0), state.range(1));
        workspace.Reset();
        state.ResumeTiming();
        workspace.LoadWordsArray(words);
        workspace.LoadPuzzleArray();
    }
}
BENCHMARK(MakePuzzle)->Args({10, 5})->Args({40, 7})->Args({40, 12})->Args({40, 20})->Unit(benchmark::kMicrosecond);

/// From the click on Create Puzzle to the painted puzzle window.
void ShowPuzzle(benchmark::State& state)
{
    driving::Script person;
    person.Start();
    generator::RandomSource random;
    for (const auto& word : RandomWords(random, state.range(0), state.range(1)))
        person.Step("word:" + QString::fromStdU16String(word));
    person.Run("no menu:fq"); // nothing is left to ask about
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

/// From the accepted print dialog to the finished PDF: a grid of 30 x 30 with 40 words.
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
    driving::PrepareApplication();
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
