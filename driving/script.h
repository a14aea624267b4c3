#pragma once

#include "app/desktop/dialogs.h"
#include "app/frmMain.h"
#include "driving/driving.h"

#include <QDir>

#include <memory>

namespace driving {

/// Works the program by scripts: what a person does, step by step, with the real controls, menus, boxes and
/// dialogs of the windows. A step is a word, or a word, a colon and what it is about, "_" for a blank there:
///
///     type:TEXT enter wipe home del           the word box
///     word:TEXT fill:N                        type and enter; N words
///     title:TEXT titleenter clicktitle        the title box
///     leave tabs                              to the word box, tabs by the Tab key from the list
///     key:KEYS                                wherever the focus is
///     pick:N edit delete create               the list, from 0, and the buttons
///     tool:KEY menu:AB                        the toolbar; the menus by their access keys
///     print back closepuzzle closemain        the puzzle window, the close boxes
///     taskbar                                 the main window minimised and brought back
///     yes no cancel ok escape file:NAME pdf:NAME end
///                                             answers, given before the step that brings up the question; "end" of
///                                             the desktop's session
class Script {
public:
    explicit Script(const QString& folder = QString()) : Folder(folder) {}

    /// Opens a main window of its own, in the place of the last.
    void Start(generator::RandomSource random = generator::RandomSource());
    /// Makes the window that is shown the active one, as a desktop does when a box has closed; what has the focus.
    QWidget* Activate();
    void Step(const QString& step);
    /// Steps with blanks between them.
    void Run(const QString& steps);

    template <class T>
    T& Control(const char* name)
    {
        return Find<T>(*Window, name);
    }

    QDir Folder; ///< of the files that the steps name
    std::unique_ptr<frmMain> Window;
    Answers Answering;

private:
    DialogKeeper Dialogs;

    void Click(const char* button);
    void Type(const char* box, const QString& text);
    void Fill(int words);
    void Pick(int position, bool secondClick = false);
    void Enter(const QString& about, void (*enter)(QLineEdit& box, const QString& text));
    void PressWithoutWaiting(const QString& keys);
    void TabRound();
    QWidget* OpenMenu(char key);
};

} // namespace driving
