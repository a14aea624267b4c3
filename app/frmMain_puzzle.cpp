#include "app/controls/looks.h"
#include "app/desktop/message_boxes.h"
#include "app/desktop/page_printer.h"
#include "app/desktop/print_dialog.h"
#include "app/desktop/program.h"
#include "app/frmMain.h"
#include "view/grid_drawing.h"
#include "wordlist/limits.h"

#include <QApplication>
#include <QRegularExpression>

namespace {

/// One paragraph of a message: what to do, then the words it applies to. Empty when there are no such words. The
/// message must fit a screen even when a file holds a hundred very long words.
QString Demand(const QString& demand, const std::vector<std::u16string>& words)
{
    constexpr qsizetype NamedCharacters = 40;
    constexpr qsizetype NamedWords = 15;
    static const QRegularExpression control("[\\x00-\\x1f]");
    QStringList names;
    for (const std::u16string& word : words) {
        QString name = QString::fromStdU16String(word).replace(control, " ");
        if (name.size() > NamedCharacters)
            name = name.left(NamedCharacters) + u'…';
        names += '"' + name + '"';
    }
    const QString more = QObject::tr(" and %1 more").arg(names.size() - NamedWords);
    return names.isEmpty() ? QString()
                           : "\n\n" + demand + '\n' + names.mid(0, NamedWords).join(", ") +
                                 (names.size() > NamedWords ? more : QString());
}

QString Message(const wordlist::Obstacle& obstacle, std::size_t words)
{
    return QObject::tr("This word list cannot become a puzzle yet.") +
           Demand(QObject::tr("It holds %1 words, and a puzzle has room for %2. Please remove %3; these stand after "
                              "the last that fits:")
                      .arg(words)
                      .arg(wordlist::MaxWords)
                      .arg(obstacle.surplus.size()),
                  obstacle.surplus) +
           Demand(QObject::tr("Please shorten to %1 characters:").arg(wordlist::MaxWordLength), obstacle.tooLong) +
           Demand(QObject::tr("Please remove, or give a letter to hide:"), obstacle.letterless);
}

} // namespace

void frmMain::cmdCreatePuzzle_Click()
{
    CheckForSave(); // whatever the answer
    if (isHidden())
        return; // the session has ended meanwhile
    const auto words = lstWordlist->Words();
    if (const auto obstacle = wordlist::ObstacleToPuzzle(words)) {
        ShowMessageBox(this, Message(*obstacle, words.size()));
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

void frmMain::DrawToPictureBox() { Puzzle->pctPuzzle->Write(view::LayOutGrid(Workspace, frmPuzzle::SurfaceWidth)); }

/// Prints the puzzle on one page. It ends quietly when the user cancels or the printer fails.
void frmMain::Print_Puzzle()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(lblBigTitle->text());
    if (RunPrintDialog(printer, *Puzzle))
        PrintPage(printer, lblBigTitle->text(), lstWordlist->Words(), Workspace);
}
