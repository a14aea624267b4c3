#include "app/controls/looks.h"
#include "app/desktop/message_boxes.h"
#include "app/frmMain.h"
#include "app/program.h"

#include <QCloseEvent>

#include <utility>

/// Offers to save unsaved changes. True when the user cancelled.
bool frmMain::CheckForSave()
{
    if (Saved)
        return false;
    switch (message_boxes::AskToSave(this, tr("Do you want to save the changes you made to your Glyphgrove?"),
                                     tr("Important"))) {
    case QMessageBox::Yes:
        if (mnuSave->isEnabled())
            mnuSave_Click();
        else
            mnuSaveAs_Click();
        return false;
    case QMessageBox::No:
        Saved = true;
        return false;
    default:
        return true;
    }
}

/// An empty document titled New Puzzle; for New without a file name, for a load with the one it had.
void frmMain::ResetAll(bool forNew)
{
    ClearTextbox();
    txtTitle->setText(program::NewPuzzle);
    lstWordlist->clear();
    EditIndex = -1; // an edit under way was of a word that is gone
    WordCounter();
    ShowTitleInCaption();
    mnuSave->setEnabled(false);
    mnuSaveAs->setEnabled(false);
    Saved = true;
    if (forNew) {
        DocFileName.clear();
        RememberedName.clear();
    }
}

void frmMain::mnuNewPuzzle_Click()
{
    if (!CheckForSave())
        ResetAll(true);
}

void frmMain::mnuExit_Click()
{
    Terminate();
}

/// Closes the windows, the one opened last first. The program ends with the last of them; the main window may
/// stay open, and the program with it.
void frmMain::Terminate()
{
    if (Puzzle && Puzzle->isVisible())
        Puzzle->close();
    close();
}

void frmMain::closeEvent(QCloseEvent* event)
{
    const bool mayClose = Form_QueryUnload();
    event->setAccepted(mayClose);
    if (mayClose)
        Form_Unload();
}

bool frmMain::Form_QueryUnload()
{
    return Saved || !CheckForSave();
}

void frmMain::Form_Unload()
{
    if (Puzzle)
        Puzzle->disconnect(this); // a window that has closed must not come back
    Terminate();
}

void frmMain::txtTitle_Change()
{
    lblBigTitle->setText(txtTitle->text());
}

/// The first click into a box without a title of its own empties it.
void frmMain::txtTitle_Click()
{
    InTitleBox = true; // the click may come before the window is told that it is active
    if (txtTitle->text() == program::NewPuzzle || !TitleSet) {
        txtTitle->clear();
        TitleSet = true;
    }
    Saved = false;
}

void frmMain::txtTitle_LostFocus()
{
    if (txtTitle->text().isEmpty()) {
        txtTitle->setText(program::NewPuzzle);
        TitleSet = false;
    }
}

/// The title box has lost the focus when another control has it: not when a menu, a box or another window
/// has.
void frmMain::FocusMoved(QWidget* now)
{
    if (now == txtTitle)
        InTitleBox = true;
    else if (Client->isAncestorOf(now))
        LeaveTitleBox();
}

void frmMain::LeaveTitleBox()
{
    if (std::exchange(InTitleBox, false))
        txtTitle_LostFocus();
}

void frmMain::ShowTitleInCaption()
{
    looks::SetCaption(*this, program::Name + '-' + txtTitle->text());
}
