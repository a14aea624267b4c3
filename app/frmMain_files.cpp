#include "app/desktop/file_bytes.h"
#include "app/desktop/message_boxes.h"
#include "app/frmMain.h"
#include "document/puzzle_file.h"

#include <QFileInfo>

namespace {

const FileDialog::Filter PuzzleFiles{"Glyphgrove Files (*.pux)", "*.pux"};
const FileDialog::Filter AllFiles{"All File (*.*)", "*"};

} // namespace

void frmMain::mnuOpen_Click()
{
    if (CheckForSave())
        return;
    const QString fileName = AskForFile(QFileDialog::AcceptOpen, tr("Open"), {PuzzleFiles});
    if (fileName.isEmpty())
        return;
    const bool fileRejected = LoadFile(fileName);
    DocFileName = fileRejected ? QString() : fileName;
}

/// Asks for a file. Returns its path, which the next dialog shows first, or nothing when the user cancels.
QString frmMain::AskForFile(QFileDialog::AcceptMode mode, const QString& title,
                            const QList<FileDialog::Filter>& filters)
{
    QString path = FileDialog::Ask({mode, title, filters, Folder, RememberedName}, this);
    if (!path.isEmpty()) {
        RememberedName = path;
        Folder = QFileInfo(path).absoluteDir();
    }
    return path;
}

void frmMain::mnuSave_Click() { SaveFile(DocFileName); }

void frmMain::mnuSaveAs_Click()
{
    RememberedName = txtTitle->text();
    const QString fileName = AskForFile(QFileDialog::AcceptSave, tr("Save As"), {PuzzleFiles, AllFiles});
    if (!fileName.isEmpty() && SaveFile(fileName))
        DocFileName = fileName;
}

/// The toolbar's Save button is never disabled: it saves, saves as, or says why it cannot.
void frmMain::ToolbarSave()
{
    if (mnuSave->isEnabled())
        mnuSave_Click();
    else if (mnuSaveAs->isEnabled())
        mnuSaveAs_Click();
    else
        ShowMessageBox(this, tr("You must have at least one word to save the puzzle."));
}

/// Writes the document to `fileName`. False when that fails: the document then still counts as unsaved.
bool frmMain::SaveFile(const QString& fileName)
{
    const auto bytes = document::WritePuzzle(txtTitle->text().toStdU16String(), lstWordlist->Words());
    if (!file_bytes::Save(fileName, bytes))
        return false;
    Saved = true;
    ShowTitleInCaption();
    return true;
}

/// Replaces the document with what can be read of `fileName`. True when the file is none of ours: the document is
/// then empty and cannot be saved.
bool frmMain::LoadFile(const QString& fileName)
{
    ResetAll(false);
    cmdCreatePuzzle->setEnabled(true);
    mnuSaveAs->setEnabled(true);
    mnuSave->setEnabled(true);
    const document::PuzzleFile file = document::ReadPuzzle(file_bytes::Read(fileName, document::MaxFileBytes));
    if (file.marker == document::Marker::Older)
        ShowMessageBox(this,
                       tr("This is a Glyphgrove 2.1 file. "
                          "For maximum performance, saving this file will update it to 2.1.1 format."),
                       tr("Important!"));
    if (file.marker == document::Marker::Unknown) {
        ShowMessageBox(this, tr("Not a valid Glyphgrove %1 File or file corrupted").arg(program::Version),
                       tr("WARNING!"));
        mnuSave->setEnabled(false);
        mnuSaveAs->setEnabled(false);
        return true;
    }
    if (file.title)
        txtTitle->setText(QString::fromStdU16String(*file.title));
    for (const std::u16string& word : file.words)
        lstWordlist->Insert(lstWordlist->count(), QString::fromStdU16String(word));
    ShowTitleInCaption();
    TitleSet = true;
    WordCounter();
    return false;
}
