#include "app/frmMain.h"

#include "app/controls/accessible.h"
#include "app/controls/looks.h"
#include "app/controls/maker_link.h"
#include "app/controls/toolbars.h"
#include "app/desktop/application.h"
#include "app/desktop/folders.h"
#include "app/desktop/message_boxes.h"
#include "app/frmAbout.h"
#include "app/program.h"
#include "document/character_set.h"
#include "wordlist/limits.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMenuBar>
#include <QSessionManager>

namespace {

// Positions and sizes in the client area, in twips.
constexpr int ClientWidth = 10290;
constexpr int ClientHeight = 6420;
constexpr int Margin = 360;
constexpr int BoxLeft = 1080;
constexpr int BoxWidth = 3960;
constexpr int RowHeight = 390;
constexpr int TitleRow = 1260;
constexpr int WordRow = 1770;
constexpr int ListHeadRow = 2385;
constexpr int BottomRow = 5895;
constexpr int CounterLeft = 6900;

} // namespace

frmMain::frmMain(generator::RandomSource random)
    : Scale(looks::ScaleForFont(*this)), Folder(UsersDocuments()), Workspace(std::move(random))
{
    InstallAccessibility();
    setObjectName("frmMain");
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
    BuildMenus();
    BuildToolbar();
    BuildTitle();
    BuildWordEntry();
    BuildCommandButtons();
    BuildWordList();
    BuildMakerLink();
    FixClient(looks::SizeInPixels(*this, ClientWidth, ClientHeight, Scale));
    setWindowTitle(program::Name + " - " + program::NewPuzzle);
    connect(qApp, &QGuiApplication::commitDataRequest, this,
            [this](QSessionManager& session) { AnswerSession(session, [this] { return Form_QueryUnload(); }); });
    txtNewWords->setFocus();
}

frmMain::~frmMain()
{
    qApp->disconnect(this); // destroying the controls moves the focus once more
}

void frmMain::BuildMenus()
{
    QMenu* mnuFile = menuBar()->addMenu(tr("&File"));
    mnuFile->setObjectName("mnuFile");
    AddCommand(mnuFile, "mnuOpen", tr("&Open"), QKeySequence::Open, &frmMain::mnuOpen_Click);
    mnuSave = AddCommand(mnuFile, "mnuSave", tr("Sa&ve"), QKeySequence::Save, &frmMain::mnuSave_Click);
    mnuSaveAs =
        AddCommand(mnuFile, "mnuSaveAs", tr("Sav&e As"), Qt::CTRL | Qt::SHIFT | Qt::Key_S, &frmMain::mnuSaveAs_Click);
    AddCommand(mnuFile, "mnuNewPuzzle", tr("&New Puzzle"), QKeySequence::New, &frmMain::mnuNewPuzzle_Click);
    AddCommand(mnuFile, "mnuExit", tr("&Quit"), Qt::CTRL | Qt::Key_Q, &frmMain::mnuExit_Click);
    mnuSave->setEnabled(false);
    mnuSaveAs->setEnabled(false);
    QMenu* mnuHelp = menuBar()->addMenu(tr("&Help"));
    mnuHelp->setObjectName("mnuHelp");
    AddCommand(mnuHelp, "mnuAbout", tr("&About"), Qt::Key_F1, &frmMain::mnuAbout_Click);
}

QAction* frmMain::AddCommand(QMenu* menu, const char* name, const QString& caption, const QKeySequence& keys,
                             void (frmMain::*command)())
{
    QAction* action = menu->addAction(caption);
    action->setObjectName(name);
    action->setShortcut(keys);
    connect(action, &QAction::triggered, this, Guarded([=, this](bool /*checked*/) { (this->*command)(); }));
    return action;
}

void frmMain::BuildToolbar()
{
    QToolBar* toolbar = MakeToolbar("Toolbar1", tr("Puzzle and words"),
                                    {{"New", tr("Start New Puzzle")},
                                     {"Open", tr("Open Saved Puzzle")},
                                     {"Save", tr("Save Puzzle")},
                                     {"Delete", tr("Delete Word")}},
                                    *Client, [this](int index) { Toolbar1_ButtonClick(index); });
    looks::Place(*toolbar, 0, 0, ClientWidth, 360, Scale);
}

void frmMain::BuildTitle()
{
    lblBigTitle = new TitleLabel(Client);
    lblBigTitle->setText(program::NewPuzzle);
    lblBigTitle->setFont(looks::BoldItalic(looks::Serif, 26.25));
    lblBigTitle->setAlignment(Qt::AlignCenter);
    Add(lblBigTitle, "lblBigTitle", 120, 420, ClientWidth - 240, 735);

    txtTitle = new TextBox({document::TakesInTitle, wordlist::MaxTitleLength}, Client);
    txtTitle->setAccessibleName(tr("Title"));
    txtTitle->setText(program::NewPuzzle);
    Add(txtTitle, "txtTitle", BoxLeft, TitleRow, BoxWidth, RowHeight);
    Add(NewLabel(tr("Title:"), txtTitle), "lblTitle", Margin, TitleRow, BoxLeft - Margin, RowHeight);
    connect(txtTitle, &QLineEdit::textChanged, this, &frmMain::txtTitle_Change);
    connect(txtTitle, &TextBox::Clicked, this, &frmMain::txtTitle_Click);
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget* /*old*/, QWidget* now) { FocusMoved(now); });
}

void frmMain::BuildWordEntry()
{
    txtNewWords = new WordBox(Client);
    txtNewWords->setAccessibleName(tr("Word"));
    connect(txtNewWords, &WordBox::ListInserted, this, &frmMain::EnterList);
    Add(txtNewWords, "txtNewWords", BoxLeft, WordRow, BoxWidth, RowHeight);
    Add(NewLabel(tr("Word:"), txtNewWords), "lblWord", Margin, WordRow, BoxLeft - Margin, RowHeight);
}

void frmMain::BuildCommandButtons()
{
    cmdEnter = AddButton("cmdEnter", tr("Enter"), &frmMain::cmdEnter_Click, BoxLeft + BoxWidth + 150, WordRow, 1950,
                         RowHeight);
    cmdEnter->setAutoDefault(false); // or it stops being the default once the focus has passed over it
    cmdEnter->setDefault(true);
    cmdCreatePuzzle = AddButton("cmdCreatePuzzle", tr("Create Puzzle"), &frmMain::cmdCreatePuzzle_Click, 7680,
                                TitleRow, 2250, WordRow + RowHeight - TitleRow);
    cmdCreatePuzzle->setEnabled(false);
    cmdEditWord = AddButton("cmdEditWord", tr("Edit Word"), &frmMain::EditWord, 6885, ListHeadRow, 1470, RowHeight);
    cmdDelete =
        AddButton("cmdDelete", tr("Delete Word"), &frmMain::cmdDelete_Click, 8460, ListHeadRow, 1470, RowHeight);
    ShowEditButtons(false);
}

void frmMain::BuildWordList()
{
    lstWordlist = new WordList(Client);
    lstWordlist->setAccessibleName(tr("My Word List"));
    Add(lstWordlist, "lstWordlist", Margin, 2835, ClientWidth - 2 * Margin, 2925);
    connect(lstWordlist, &WordList::Chosen, this, Guarded([this](int position) { lstWordlist_Click(position); }));
    QLabel* heading = NewLabel(tr("My Word List"), lstWordlist);
    heading->setFont(looks::BoldItalic(looks::Serif, 14.25));
    heading->setAlignment(Qt::AlignCenter);
    Add(heading, "lblMyWordlist", 3600, ListHeadRow, ClientWidth - 7200, RowHeight);

    // The count ends at the list's right edge, its label just before it.
    auto* counter = new QWidget(Client);
    Add(counter, "", CounterLeft, BottomRow, ClientWidth - Margin - CounterLeft, RowHeight);
    counter->setFont(heading->font());
    lblWordCount = NewLabel(QString());
    lblWordCount->setObjectName("lblWordCount");
    QLabel* countLabel = NewLabel(tr("Word Count:"), lblWordCount);
    countLabel->setObjectName("lblWordCountLabel");
    auto* row = new QHBoxLayout(counter);
    row->setContentsMargins({});
    row->addStretch();
    row->addWidget(countLabel);
    row->addWidget(lblWordCount);
    WordCounter();
}

void frmMain::BuildMakerLink()
{
    auto* lblTallowick = new MakerLink(9.75, Client);
    lblTallowick->setToolTip(tr("Click to go to the Tallowick website."));
    Add(lblTallowick, "lblTallowick", Margin, BottomRow + 60, 0, 0);
    PlaceTrademark(*lblTallowick, looks::BoldItalic(looks::Monospaced, 8.25));
}

void frmMain::Add(QWidget* control, const char* name, int x, int y, int width, int height)
{
    control->setObjectName(name);
    looks::Place(*control, x, y, width, height, Scale);
}

QLabel* frmMain::NewLabel(const QString& text, QWidget* buddy)
{
    auto* label = new QLabel(text, Client);
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(buddy);
    return label;
}

QPushButton* frmMain::AddButton(const char* name, const QString& caption, void (frmMain::*command)(), int x, int y,
                                int width, int height)
{
    auto* button = new QPushButton(caption, Client);
    button->setAutoDefault(true); // Return presses it when it has the focus
    connect(button, &QPushButton::clicked, this, Guarded([=, this](bool /*checked*/) { (this->*command)(); }));
    Add(button, name, x, y, width, height);
    return button;
}

/// Becoming active: when the window is first shown, when the About box closes, when the window comes back after the
/// puzzle window.
void frmMain::Form_Activate()
{
    txtNewWords->clear();
    Workspace.Reset();
}

void frmMain::showEvent(QShowEvent* event)
{
    ClientWindow::showEvent(event);
    if (!event->spontaneous()) // not when the desktop restores a minimised window
        Form_Activate();
}

/// Return presses the default button when the control with the focus has no use for it. Ctrl+S does what the
/// toolbar's button does, even when the menu's command is disabled.
void frmMain::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Save)) {
        ToolbarSave();
        return;
    }
    ClientWindow::keyPressEvent(event);
    if (!event->isAccepted() && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        cmdEnter->click();
}

void frmMain::Toolbar1_ButtonClick(int index)
{
    switch (index) {
    case 1:
        return mnuNewPuzzle_Click();
    case 2:
        return mnuOpen_Click();
    case 3:
        return ToolbarSave();
    case 4:
        DeleteSelectedWord();
        break;
    default:
        ShowMessage(this, tr("Button not in use yet"));
    }
}

void frmMain::mnuAbout_Click()
{
    frmAbout(this).exec();
    Form_Activate();
}
