#include "app/frmMain.h"
#include "tools/driving.h"

#include <QDir>
#include <QPushButton>

#include <iostream>

// Drives the program through a whole puzzle, off-screen, with an example's words, and leaves pictures of what
// a person would have seen, and the printed page.

namespace {

/// Lets the windows work until `done` or a few seconds have passed.
bool WaitFor(const std::function<bool()>& done)
{
    for (int i = 0; i < 500 && !done(); ++i) {
        QTimer::singleShot(10, QCoreApplication::instance(), [] {});
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return done();
}

bool Leave(const QString& what, const QString& path, bool written)
{
    std::cout << qPrintable(what) << ": " << qPrintable(written ? path : "could not be written") << '\n';
    return written;
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 3) {
        std::cerr << "usage: glyphgrove_demo EXAMPLE.pux FOLDER\n";
        return 2;
    }
    driving::PrepareApplication();
    const QApplication application(argc, argv);
    const QDir folder(argv[2]);

    frmMain window;
    window.show();
    driving::Answers answers;
    answers.Expect(driving::ChooseFile(QDir::current().absoluteFilePath(argv[1])));
    driving::Find<QAction>(window, "mnuOpen").trigger();
    auto& create = driving::Find<QPushButton>(window, "cmdCreatePuzzle");
    if (!WaitFor([&] { return answers.Done() && create.isEnabled(); }))
        return 1;
    const QString mainPicture = folder.absoluteFilePath("main-window.png");
    bool ok = Leave("main window", mainPicture, window.grab().save(mainPicture));

    create.click();
    QWidget* puzzle = driving::ShownWindow("frmPuzzle");
    if (puzzle == nullptr)
        return 1;
    const QString puzzlePicture = folder.absoluteFilePath("puzzle-window.png");
    ok = Leave("puzzle window", puzzlePicture, puzzle->grab().save(puzzlePicture)) && ok;

    const QString page = folder.absoluteFilePath("puzzle.pdf");
    QFile::remove(page);
    answers.Expect(driving::PrintTo(page));
    driving::ToolButton(*puzzle, "PuzzleToolbar", "Print").click();
    ok = Leave("printed page", page, QFile::exists(page)) && ok;

    driving::ToolButton(*puzzle, "PuzzleToolbar", "Back").click();
    return ok && window.isVisible() ? 0 : 1;
}
