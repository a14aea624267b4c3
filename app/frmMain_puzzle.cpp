#include "app/frmMain.h"
#include "app/message_boxes.h"
#include "app/page_printer.h"
#include "app/print_dialog.h"
#include "app/program.h"
#include "view/grid_drawing.h"
#include "wordlist/limits.h"

void frmMain::cmdCreatePuzzle_Click()
{
    CheckForSave(); // whatever the answer
    const auto words = lstWordlist->Words();
    if (const auto obstacle = wordlist::ObstacleToPuzzle(words)) {
        message_boxes::Tell(this, QString::fromStdU16String(*obstacle));
        return;
    }
    FillPuzzleWindow();
    Workspace.LoadWordsArray(words);
    Workspace.LoadPuzzleArray();
    QWidget* focused = focusWidget();
    hide();
    if (focused != nullptr)
        focused->setFocus(); // hiding passes the focus on; it is to be where it was when the window comes back
    DrawToPictureBox();
    Puzzle->show();
}

void frmMain::FillPuzzleWindow()
{
    Puzzle = new frmPuzzle;
    connect(Puzzle, &frmPuzzle::PrintRequested, this, &frmMain::Print_Puzzle);
    connect(Puzzle, &frmPuzzle::Unloaded, this, &QWidget::show);
    for (int i = 0; i < lstWordlist->count(); ++i)
        Puzzle->SetWord(i, lstWordlist->item(i)->text());
    Puzzle->SetTitle(lblBigTitle->text());
    Puzzle->setWindowTitle(program::Name + '-' + lblBigTitle->text());
}

void frmMain::DrawToPictureBox()
{
    Puzzle->pctPuzzle->Draw(view::LayOutGrid(Workspace, frmPuzzle::SurfaceWidth));
}

/// Prints the puzzle that is shown on one page. Cancelling and failing end it quietly.
void frmMain::Print_Puzzle()
{
    PagePaper paper(lblBigTitle->text());
    if (!RunPrintDialog(paper.Printer(), *Puzzle))
        return;
    view::PrintPage(paper, lblBigTitle->text().toStdU16String(), lstWordlist->Words(), Workspace);
}
