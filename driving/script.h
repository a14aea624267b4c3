#pragma once

#include "app/desktop/application.h"
#include "app/frmMain.h"
#include "driving/driving.h"

#include <QDir>
#include <QLineEdit>

#include <map>
#include <memory>

namespace driving {

/// Operates the program from scripts: each step is something a person does with the real windows. A step is a name,
/// or NAME:ARGUMENT, where "_" stands for a space:
///
///     type:TEXT enter wipe home del           word box
///     word:TEXT fill:N                        type and enter a word; enter N words
///     title:TEXT titleenter clicktitle        title box
///     over:B,START,LENGTH,TEXT                type over a selection in box B: t for title, w for word
///     paste:... drop:... middle:... compose:...   the same in other ways; "\n", "\r" and "\t" in TEXT
///     list:TEXT                               paste into the word box, at its end
///     waiting:KEY_KEY                         keys that queue up before the first is handled
///     pick:N double:N look:KEY edit delete    list: click or double-click entry N, from 0; press a key
///     leave tabs key:KEYS                     focus the word box; press Tab from the list; press keys
///     create tool:KEY menu:AB openmenu:A      buttons, toolbar; menus by their access keys
///     print back closepuzzle       puzzle window
///     closemain taskbar                       close the main window; minimise and restore it
///     yes no cancel ok escape end file:NAME pdf:NAME
///                                             the answer to a later question; "end" ends the desktop session
class Script {
public:
    explicit Script(const QString& folder = QString()) : Folder(folder) {}

    /// Opens a new main window and deletes the previous one.
    void Start(generator::RandomSource random = generator::RandomSource());
    /// Activates the visible window, as a desktop does when a box closes. Returns the widget with the focus.
    QWidget* Activate();
    /// Runs one step; aborts when there is no such step.
    void Step(const QString& step);
    /// Runs steps separated by spaces.
    void Run(const QString& steps);

    template <class T>
    T& Control(const char* name)
    {
        return Find<T>(*Window, name);
    }

    QDir Folder; ///< holds the files that the steps name
    std::unique_ptr<frmMain> Window;
    Answers Answering;

private:
    using Steps = std::map<QString, std::function<void()>>;

    Steps ActionSteps(const QString& about);
    Steps AnswerSteps(const QString& about);
    void Click(const char* control);
    void Type(const char* box, const QString& text);
    void Fill(int words);
    void Pick(int position, bool doubleClick = false);
    using Way = std::function<void(QLineEdit&, const QString&)>;

    void Enter(const QString& about, const Way& way);
    void PressWithoutWaiting(const QString& keys);
    void TabRound();
    QWidget* OpenMenu(char key);

    WindowKeeper Keeper;
};

} // namespace driving
