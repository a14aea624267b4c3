#include "app/controls/looks.h"
#include "app/desktop/message_boxes.h"
#include "app/desktop/program.h"
#include "app/frmMain.h"

#include <QApplication>
#include <QCloseEvent>
#include <QScopedValueRollback>

#include <utility>

/// Offers to save unsaved changes. True when the user cancels, and while the question is still open, because the
/// session may ask several times. If the session has closed the question, it is asked again.
bool frmMain::CheckForSave()
{
    if (Saved)
        return false;
    if (AsksToSave && QApplication::activeModalWidget() != nullptr)
        return true;
    const QScopedValueRollback asks(AsksToSave, true);
    switch (ShowMessageBox(this, tr("Do you want to save the changes you made to your Glyphgrove?"), tr("Important"),
                           QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel)) {
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

/// Empties the document. New also takes its file name away; a load keeps it.
void frmMain::ResetAll(bool forNew)
{
    ClearTextbox();
    txtTitle->setText(program::NewPuzzle);
    lstWordlist->clear();
    EditIndex = -1; // the word being edited is gone
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

void frmMain::mnuExit_Click() { Terminate(); }

/// Closes the windows, the last one opened first; the user may keep the main window open.
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

bool frmMain::Form_QueryUnload() { return !EntersList && !CheckForSave(); }

void frmMain::Form_Unload()
{
    if (Puzzle)
        Puzzle->disconnect(this); // or this window would come back
    Terminate();
}

void frmMain::txtTitle_Change() { lblBigTitle->SetTitle(txtTitle->text()); }

/// The first click empties a box that holds no title of its own.
void frmMain::txtTitle_Click()
{
    InTitleBox = true; // the click may arrive before the window becomes active
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

/// The title box loses the focus to another control, not to a menu, a dialog or another window.
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

void frmMain::ShowTitleInCaption() { looks::SetCaption(*this, program::Name + '-' + txtTitle->text()); }
