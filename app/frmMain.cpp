#include "app/frmMain.h"

#include "app/controls/accessible.h"
#include "app/controls/looks.h"
#include "app/controls/maker_link.h"
#include "app/controls/toolbars.h"
#include "app/desktop/dialogs.h"
#include "app/desktop/message_boxes.h"
#include "app/frmAbout.h"
#include "app/program.h"
#include "document/character_set.h"
#include "wordlist/limits.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMenuBar>

namespace {

// Where the controls stand in the client area, in twips.
constexpr int ClientWidth = 10290;
constexpr int ClientHeight = 6420;
constexpr int Margin = 360;
constexpr int BoxLeft = 1080;
constexpr int BoxWidth = 3960;
constexpr int RowHeight = 390;
constexpr int TitleRow = 1260;
constexpr int WordRow = 1770;
constexpr int ListHeadRow = 2385;
constexpr int ListTop = 2835;
constexpr int ListHeight = 2925;
constexpr int BottomRow = 5895;

} // namespace

frmMain::frmMain(generator::RandomSource random) : Scale(looks::ScaleForFont(*this)), Workspace(std::move(random))
{
    TellAssistiveTechnology();
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
    Form_Load();
}

frmMain::~frmMain()
{
    qApp->disconnect(this); // taking the controls down moves the focus once more
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
    AddCommand(mnuHelp, "mnuAbout", tr("&About"), QKeySequence::HelpContents, &frmMain::mnuAbout_Click);
}

QAction* frmMain::AddCommand(QMenu* menu, const char* name, const QString& caption, const QKeySequence& keys,
                             void (frmMain::*command)())
{
    QAction* action = menu->addAction(caption);
    action->setObjectName(name);
    action->setShortcut(keys);
    connect(action, &QAction::triggered, this, [this, command] {
        if (CommandsMayStart())
            (this->*command)();
    });
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
    Place(*toolbar, 0, 0, ClientWidth, 360);
}

void frmMain::BuildTitle()
{
    lblBigTitle = new TitleLabel(program::NewPuzzle, Client);
    lblBigTitle->setObjectName("lblBigTitle");
    lblBigTitle->setTextFormat(Qt::PlainText);
    lblBigTitle->setFont(looks::BoldItalic(looks::Serif, 26.25));
    lblBigTitle->setAlignment(Qt::AlignCenter);
    Place(*lblBigTitle, 120, 420, ClientWidth - 240, 735);

    txtTitle = new TextBox({document::TakesInTitle, wordlist::MaxTitleLength}, Client);
    txtTitle->setObjectName("txtTitle");
    txtTitle->setAccessibleName(tr("Title"));
    txtTitle->setText(program::NewPuzzle);
    Place(*txtTitle, BoxLeft, TitleRow, BoxWidth, RowHeight);
    Place(*AddLabel("lblTitle", tr("Title:"), txtTitle), Margin, TitleRow, BoxLeft - Margin, RowHeight);
    connect(txtTitle, &QLineEdit::textChanged, this, &frmMain::txtTitle_Change);
    connect(txtTitle, &TextBox::Clicked, this, &frmMain::txtTitle_Click);
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget* /*old*/, QWidget* now) { FocusMoved(now); });
}

void frmMain::BuildWordEntry()
{
    txtNewWords = new WordBox(Client);
    txtNewWords->setObjectName("txtNewWords");
    txtNewWords->setAccessibleName(tr("Word"));
    Place(*txtNewWords, BoxLeft, WordRow, BoxWidth, RowHeight);
    Place(*AddLabel("lblWord", tr("Word:"), txtNewWords), Margin, WordRow, BoxLeft - Margin, RowHeight);
}

void frmMain::BuildCommandButtons()
{
    cmdEnter = AddButton("cmdEnter", tr("Enter"), &frmMain::cmdEnter_Click);
    cmdEnter->setAutoDefault(false); // it would cease to be the default once the focus had passed over it
    cmdEnter->setDefault(true);
    Place(*cmdEnter, BoxLeft + BoxWidth + 150, WordRow, 1950, RowHeight);
    cmdCreatePuzzle = AddButton("cmdCreatePuzzle", tr("Create Puzzle"), &frmMain::cmdCreatePuzzle_Click);
    cmdCreatePuzzle->setEnabled(false);
    Place(*cmdCreatePuzzle, 7680, TitleRow, 2250, WordRow + RowHeight - TitleRow);
    cmdEditWord = AddButton("cmdEditWord", tr("Edit Word"), &frmMain::EditWord);
    Place(*cmdEditWord, 6885, ListHeadRow, 1470, RowHeight);
    cmdDelete = AddButton("cmdDelete", tr("Delete Word"), &frmMain::cmdDelete_Click);
    Place(*cmdDelete, 8460, ListHeadRow, 1470, RowHeight);
    ShowEditButtons(false);
}

void frmMain::BuildWordList()
{
    lstWordlist = new WordList(Client);
    lstWordlist->setObjectName("lstWordlist");
    lstWordlist->setAccessibleName(tr("My Word List"));
    Place(*lstWordlist, Margin, ListTop, ClientWidth - 2 * Margin, ListHeight);
    connect(lstWordlist, &WordList::Chosen, this, &frmMain::lstWordlist_Click);
    QLabel* heading = AddLabel("lblMyWordlist", tr("My Word List"), lstWordlist);
    heading->setFont(looks::BoldItalic(looks::Serif, 14.25));
    heading->setAlignment(Qt::AlignCenter);
    Place(*heading, 3600, ListHeadRow, ClientWidth - 7200, RowHeight);

    // Side by side, up to the list's right edge.
    auto* counter = new QWidget(Client);
    Place(*counter, 6900, BottomRow, ClientWidth - Margin - 6900, RowHeight);
    lblWordCount = AddLabel("lblWordCount", QString());
    auto* row = new QHBoxLayout(counter);
    row->setContentsMargins({});
    row->addStretch();
    row->addWidget(AddLabel("lblWordCountLabel", tr("Word Count:"), lblWordCount));
    row->addWidget(lblWordCount);
    counter->setFont(heading->font());
    WordCounter();
}

void frmMain::BuildMakerLink()
{
    auto* lblTallowick = new MakerLink(9.75, Client);
    lblTallowick->setObjectName("lblTallowick");
    lblTallowick->setToolTip(tr("Click to go to the Tallowick website."));
    Place(*lblTallowick, Margin, BottomRow + 60, 0, 0);
    PlaceTrademark(*lblTallowick, looks::BoldItalic(looks::Monospaced, 8.25));
}

void frmMain::Place(QWidget& control, int x, int y, int width, int height)
{
    looks::Place(control, x, y, width, height, Scale);
}

/// A label; `told` is the control that it stands beside and tells of.
QLabel* frmMain::AddLabel(const char* name, const QString& text, QWidget* told)
{
    auto* label = new QLabel(text, Client);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(told);
    return label;
}

QPushButton* frmMain::AddButton(const char* name, const QString& caption, void (frmMain::*command)())
{
    auto* button = new QPushButton(caption, Client);
    button->setObjectName(name);
    button->setAutoDefault(true); // Return on it presses it
    connect(button, &QPushButton::clicked, this, command);
    return button;
}

void frmMain::Form_Load()
{
    Saved = true;
    TitleSet = false;
    setWindowTitle(program::Name + " - " + program::NewPuzzle);
    txtNewWords->setFocus();
}

/// Becoming active: when first shown, when the About box closes, when shown again after the puzzle window.
void frmMain::Form_Activate()
{
    txtNewWords->clear();
    Workspace.Reset();
}

void frmMain::showEvent(QShowEvent* event)
{
    if (!event->spontaneous()) // the desktop's own un-minimising is none of these
        Form_Activate();
}

/// The default button for every control that has no use for the Return key itself. The keys of Save do what the
/// toolbar's button does, also where the menu's command is not available.
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
        mnuNewPuzzle_Click();
        break;
    case 2:
        mnuOpen_Click();
        break;
    case 3:
        ToolbarSave();
        break;
    case 4:
        DeleteSelectedWord();
        break;
    default:
        message_boxes::Tell(this, tr("Button not in use yet"));
        break;
    }
}

void frmMain::mnuAbout_Click()
{
    frmAbout(this).exec();
    Form_Activate();
}
