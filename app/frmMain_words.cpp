#include "app/desktop/message_boxes.h"
#include "app/frmMain.h"
#include "wordlist/limits.h"
#include "wordlist/order.h"

#include <QScopedValueRollback>

#include <algorithm>

void frmMain::cmdEnter_Click() { EnterWord(); }

/// False when the list is full.
bool frmMain::EnterWord() { return EditMode ? ConfirmEdit() : AddWord(); }

/// The first word of a list is in the word box. Enters all words but the last, which stays there. While a question
/// about one of them is open, the window does not close, or the words after it would be lost.
void frmMain::EnterList(const QStringList& rest)
{
    const QScopedValueRollback enters(EntersList, true);
    for (const QString& next : rest) {
        if (!txtNewWords->text().isEmpty() && !EnterWord())
            return;
        txtNewWords->insert(next);
    }
}

bool frmMain::AddWord()
{
    const QString word = txtNewWords->text();
    if (word.isEmpty()) {
        FocusWordBox();
        return true;
    }
    if (!UserWantsDuplicates(word)) {
        ClearTextbox();
        return true;
    }
    if (lstWordlist->count() >= wordlist::MaxWords) {
        ShowMessageBox(this, tr("40 word limit reached!"), tr("Word Limit!"));
        ClearTextbox();
        return false;
    }
    const auto position = wordlist::InsertPosition(lstWordlist->Words(), word.toStdU16String());
    lstWordlist->Insert(static_cast<int>(position), word);
    ClearTextbox();
    cmdCreatePuzzle->setEnabled(true);
    mnuSaveAs->setEnabled(true);
    if (!DocFileName.isEmpty())
        mnuSave->setEnabled(true);
    WordCounter();
    Saved = false;
    ShowEditButtons(false);
    return true;
}

/// Asks once for each entry equal to `word`; false as soon as the user says no.
bool frmMain::UserWantsDuplicates(const QString& word)
{
    for (auto equals = std::ranges::count(lstWordlist->Words(), word.toStdU16String()); equals > 0; --equals)
        if (ShowMessageBox(this, tr("Word already exists in your list! Do you want to put it into your list again?"),
                           tr("Duplicate warning"), QMessageBox::Yes | QMessageBox::No) == QMessageBox::No)
            return false;
    return true;
}

/// Replaces the entry at EditIndex, or adds the text as a new word when the list no longer has that entry.
bool frmMain::ConfirmEdit()
{
    if (txtNewWords->text().isEmpty())
        return true;
    const bool gone = EditIndex < 0 || EditIndex >= lstWordlist->count();
    LeaveEditMode();
    if (gone) {
        const bool room = AddWord();
        if (!wordlist::ObstacleToPuzzle(lstWordlist->Words()))
            cmdCreatePuzzle->setEnabled(true); // whether or not the word was added
        return room;
    }
    lstWordlist->Replace(EditIndex, txtNewWords->text());
    ClearTextbox();
    Saved = false;
    ShowEditButtons(false);
    cmdCreatePuzzle->setEnabled(true);
    return true;
}

void frmMain::lstWordlist_Click(int position)
{
    SelectedWord = lstWordlist->item(position)->text();
    ShowEditButtons(true);
    ClearTextbox();
}

void frmMain::EditWord()
{
    txtNewWords->setText(SelectedWord);
    EditMode = true;
    EditIndex = lstWordlist->SelectedPosition();
    FocusWordBox();
    cmdEnter->setText(tr("Enter (EditMode)"));
    cmdCreatePuzzle->setEnabled(false);
    ShowEditButtons(false);
}

void frmMain::cmdDelete_Click()
{
    if (DeleteSelectedWord())
        ShowEditButtons(false);
}

/// Removes the selected entry and ends edit mode. With nothing selected it only empties the word box.
bool frmMain::DeleteSelectedWord()
{
    const int position = lstWordlist->SelectedPosition();
    if (position >= 0) {
        lstWordlist->Remove(position);
        LeaveEditMode();
        WordCounter();
        Saved = false;
    }
    ClearTextbox();
    return position >= 0;
}

void frmMain::ShowEditButtons(bool shown)
{
    cmdEditWord->setVisible(shown);
    cmdDelete->setVisible(shown);
}

void frmMain::LeaveEditMode()
{
    EditMode = false;
    cmdEnter->setText(tr("Enter"));
}

void frmMain::ClearTextbox()
{
    txtNewWords->clear();
    FocusWordBox();
}

void frmMain::FocusWordBox()
{
    txtNewWords->setFocus();
    LeaveTitleBox(); // a window that is not active yet, as after a message box, reports no move of the focus
}

void frmMain::WordCounter()
{
    const int count = lstWordlist->count();
    QPalette palette = lblWordCount->palette();
    palette.setColor(QPalette::WindowText, count < wordlist::MaxWords ? Qt::black : Qt::red);
    lblWordCount->setPalette(palette);
    lblWordCount->setText(QString::number(count));
    lblWordCount->setAccessibleName(tr("Word Count: %1").arg(count)); // which screen readers announce
}
