#include "driving/script.h"

#include <iostream>

// Drives the program through a whole puzzle, off-screen, with an example's words, and leaves pictures of what
// a person would have seen, and the printed page.

namespace {

bool Leave(const char* what, const QString& path, bool written)
{
    std::cout << what << ": " << qPrintable(written ? path : "could not be written") << '\n';
    return written;
}

bool LeavePicture(const char* what, QWidget* window, const QString& path)
{
    return Leave(what, path, window != nullptr && window->grab().save(path));
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
    driving::Script person;
    const QDir folder(argv[2]);
    const QString page = folder.absoluteFilePath("puzzle.pdf");
    QFile::remove(page);

    person.Start();
    person.Run(QString("file:%1 menu:fo").arg(argv[1]));
    bool ok = LeavePicture("main window", person.Window.get(), folder.absoluteFilePath("main-window.png"));
    person.Step("create");
    ok = LeavePicture("puzzle window", driving::ShownWindow("frmPuzzle"),
                      folder.absoluteFilePath("puzzle-window.png")) &&
         ok;
    person.Folder = folder;
    person.Run("pdf:puzzle.pdf print back");
    ok = Leave("printed page", page, QFile::exists(page)) && ok;
    return ok && person.Window->isVisible() ? 0 : 1;
}
