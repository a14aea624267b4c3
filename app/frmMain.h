#pragma once

#include "app/controls/client_window.h"
#include "app/controls/text_box.h"
#include "app/controls/title_label.h"
#include "app/controls/word_list.h"
#include "app/desktop/file_dialog.h"
#include "app/frmPuzzle.h"
#include "generator/workspace.h"

#include <QAction>
#include <QLabel>
#include <QPushButton>

#include <memory>

class QGridLayout;

/// The main window owns everything that the program keeps while it runs: the document in its title box and word list,
/// the states of document and editor in its fields, the puzzle in its workspace. Each command is a procedure that
/// sets every visible state itself.
class frmMain : public ClientWindow {
    Q_OBJECT

public:
    explicit frmMain(generator::RandomSource random = generator::RandomSource());
    ~frmMain() override;

    /// Offers to save unsaved changes before the window closes or the session ends. False when the user cancels or is
    /// in the middle of entering a list of words.
    bool Form_QueryUnload();

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    // Controls, start-up, becoming active, toolbar, maker link (frmMain.cpp).
    void BuildMenus();
    QAction* AddCommand(QMenu* menu, const char* name, const QString& caption, const QKeySequence& keys,
                        void (frmMain::*command)());
    void BuildToolbar();
    void BuildTitle();
    void BuildWordEntry();
    void BuildCommandButtons();
    void BuildWordList();
    void BuildMakerLink();
    void Add(QWidget* control, const char* name, int row, int column, int columns = 1);
    QLabel* NewLabel(const QString& text, QWidget* buddy = nullptr);
    QPushButton* NewButton(const char* name, const QString& caption, void (frmMain::*command)());
    void Form_Activate();
    void Toolbar1_ButtonClick(int index);
    void mnuAbout_Click();

    // Words (frmMain_words.cpp).
    void cmdEnter_Click();
    bool EnterWord();
    void EnterList(const QStringList& rest);
    bool AddWord();
    bool UserWantsDuplicates(const QString& word);
    bool ConfirmEdit();
    void lstWordlist_Click(int position);
    void EditWord();
    void cmdDelete_Click();
    bool DeleteSelectedWord();
    void ShowEditButtons(bool shown);
    void LeaveEditMode();
    void ClearTextbox();
    void FocusWordBox();
    void WordCounter();

    // The document (frmMain_document.cpp).
    bool CheckForSave();
    void ResetAll(bool forNew);
    void mnuNewPuzzle_Click();
    void mnuExit_Click();
    void Form_Unload();
    void Terminate();
    void txtTitle_Change();
    void txtTitle_Click();
    void txtTitle_LostFocus();
    void FocusMoved(QWidget* now);
    void LeaveTitleBox();
    void ShowTitleInCaption();

    // Its files (frmMain_files.cpp).
    void mnuOpen_Click();
    void mnuSave_Click();
    void mnuSaveAs_Click();
    void ToolbarSave();
    QString AskForFile(QFileDialog::AcceptMode mode, const QString& title, const QList<FileDialog::Filter>& filters);
    bool SaveFile(const QString& fileName);
    bool LoadFile(const QString& fileName);

    // The puzzle (frmMain_puzzle.cpp).
    void cmdCreatePuzzle_Click();
    void FillPuzzleWindow();
    void ComeBack();
    void DrawToPictureBox();
    void Print_Puzzle();

    QGridLayout* Grid; ///< of the client area
    TitleLabel* lblBigTitle = nullptr;
    TextBox* txtTitle = nullptr;
    WordBox* txtNewWords = nullptr;
    QPushButton* cmdEnter = nullptr;
    QPushButton* cmdCreatePuzzle = nullptr;
    QPushButton* cmdEditWord = nullptr;
    QPushButton* cmdDelete = nullptr;
    WordList* lstWordlist = nullptr;
    QLabel* lblWordCount = nullptr;
    QAction* mnuSave = nullptr;
    QAction* mnuSaveAs = nullptr;
    std::unique_ptr<frmPuzzle> Puzzle; ///< kept as long as a dialog may be open above it
    QWidget* FocusBeforePuzzle = nullptr;

    bool Saved = true;       ///< no unsaved changes
    bool AsksToSave = false; ///< the question whether to save is being asked
    bool TitleSet = false;   ///< the title box holds a title that a click must not clear
    bool InTitleBox = false; ///< the title box has the focus, or had it when the user left the window
    QString DocFileName;     ///< the file that Save writes; empty when there is none
    QString RememberedName;  ///< the name that the file dialogs show first
    QDir Folder;             ///< where the file dialogs start
    QString SelectedWord;    ///< the entry selected last
    bool EntersList = false; ///< the words of a list are being entered
    bool EditMode = false;   ///< Enter replaces an entry instead of adding one
    int EditIndex = -1;      ///< that entry's position; -1 when none was selected
    generator::PuzzleWorkspace Workspace;
};
