#include "app/controls/looks.h"
#include "app/desktop/message_boxes.h"
#include "app/desktop/page_printer.h"
#include "app/desktop/print_dialog.h"
#include "app/frmMain.h"
#include "app/program.h"
#include "view/grid_drawing.h"
#include "wordlist/limits.h"

#include <QApplication>

void frmMain::cmdCreatePuzzle_Click()
{
    CheckForSave(); // whatever the answer
    if (isHidden())
        return; // the session has ended meanwhile
    const auto words = lstWordlist->Words();
    if (const auto obstacle = wordlist::ObstacleToPuzzle(words)) {
        ShowMessage(this, QString::fromStdU16String(*obstacle));
        return;
    }
    FillPuzzleWindow();
    Workspace.LoadWordsArray(words);
    Workspace.LoadPuzzleArray();
    FocusBeforePuzzle = focusWidget();
    hide();
    DrawToPictureBox();
    Puzzle->show();
}

void frmMain::FillPuzzleWindow()
{
    Puzzle = std::make_unique<frmPuzzle>(screen());
    connect(Puzzle.get(), &frmPuzzle::PrintRequested, this, &frmMain::Print_Puzzle);
    connect(Puzzle.get(), &frmPuzzle::Unloaded, this, &frmMain::ComeBack);
    for (int i = 0; i < lstWordlist->count(); ++i)
        Puzzle->SetWord(i, lstWordlist->item(i)->text());
    Puzzle->SetTitle(lblBigTitle->text());
    looks::SetCaption(*Puzzle, program::Name + '-' + lblBigTitle->text());
}

/// The puzzle window has closed. Hiding this window had moved the focus on, so it goes back to where it was.
void frmMain::ComeBack()
{
    if (FocusBeforePuzzle != nullptr)
        FocusBeforePuzzle->setFocus(); // before the window shows, or the focus would pass over another control
    show();
    if (QApplication::activeModalWidget() == nullptr)
        Puzzle.release()
            ->deleteLater(); // it must outlive a dialog above it, which the session's end may have left open
}

void frmMain::DrawToPictureBox()
{
    Puzzle->pctPuzzle->Write(view::LayOutGrid(Workspace, frmPuzzle::SurfaceWidth));
}

/// Prints the puzzle on one page. It ends quietly when the user cancels or the printer fails.
void frmMain::Print_Puzzle()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(lblBigTitle->text());
    if (RunPrintDialog(printer, *Puzzle))
        PrintPage(printer, lblBigTitle->text(), lstWordlist->Words(), Workspace);
}
