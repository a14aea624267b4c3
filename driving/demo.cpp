#include "driving/script.h"

#include <iostream>

// Takes the program through a whole puzzle with the words of an example, off-screen. Leaves pictures of both windows
// and the printed page.

namespace {

bool Report(const char* what, const QString& path, bool written)
{
    std::cout << what << ": " << qPrintable(written ? path : "could not be written") << '\n';
    return written;
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 3) {
        std::cerr << "usage: glyphgrove_demo EXAMPLE.pux FOLDER\n";
        return 2;
    }
    const QApplication application(argc, argv);
    driving::PrepareDriving();
    driving::Script person;
    const QDir folder(argv[2]);
    const QString mainPicture = folder.absoluteFilePath("main-window.png");
    const QString puzzlePicture = folder.absoluteFilePath("puzzle-window.png");
    const QString page = folder.absoluteFilePath("puzzle.pdf");
    QFile::remove(page);

    person.Start();
    person.Run(QString("file:%1 menu:fo").arg(argv[1]));
    QCoreApplication::processEvents(); // layouts that wait
    bool ok = Report("main window", mainPicture, person.Window->grab().save(mainPicture));
    person.Step("create");
    QWidget* puzzle = driving::ShownWindow("frmPuzzle");
    ok &= Report("puzzle window", puzzlePicture, puzzle != nullptr && puzzle->grab().save(puzzlePicture));
    person.Folder = folder;
    person.Run("pdf:puzzle.pdf print back");
    ok &= Report("printed page", page, QFile::exists(page));
    return ok && person.Window->isVisible() ? 0 : 1;
}
