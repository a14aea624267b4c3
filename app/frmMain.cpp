#include "app/frmMain.h"

#include "app/accessible.h"
#include "app/frmAbout.h"
#include "app/looks.h"
#include "app/message_boxes.h"
#include "app/program.h"
#include "app/toolbars.h"
#include "app/widgets/maker_link.h"
#include "document/character_set.h"
#include "wordlist/limits.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLayout>
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
constexpr int ListHeight = 2895;
constexpr int BottomRow = 5895;

} // namespace

frmMain::frmMain(generator::RandomSource random) : Client(new QWidget(this)), Workspace(std::move(random))
{
    TellAssistiveTechnology();
    setObjectName(QStringLiteral("frmMain"));
    setPalette(looks::LightYellow());
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
    setCentralWidget(Client);
    BuildMenus();
    BuildToolbar();
    BuildTitle();
    BuildWordEntry();
    BuildCommandButtons();
    BuildWordList();
    BuildMakerLink();
    looks::FixSize(*Client, ClientWidth, ClientHeight);
    layout()->setSizeConstraint(QLayout::SetFixedSize); // the client area and the menus above it
    adjustSize();
    looks::Centre(*this);
    Form_Load();
}

frmMain::~frmMain()
{
    qApp->disconnect(this); // taking the controls down moves the focus once more
}

void frmMain::BuildMenus()
{
    QMenu* mnuFile = menuBar()->addMenu(tr("&File"));
    mnuFile->setObjectName(QStringLiteral("mnuFile"));
    AddCommand(mnuFile, "mnuOpen", tr("&Open"), &frmMain::mnuOpen_Click);
    mnuSave = AddCommand(mnuFile, "mnuSave", tr("Sa&ve"), &frmMain::mnuSave_Click);
    mnuSaveAs = AddCommand(mnuFile, "mnuSaveAs", tr("Sav&e As"), &frmMain::mnuSaveAs_Click);
    AddCommand(mnuFile, "mnuNewPuzzle", tr("&New Puzzle"), &frmMain::mnuNewPuzzle_Click);
    AddCommand(mnuFile, "mnuExit", tr("&Quit"), &frmMain::mnuExit_Click);
    mnuSave->setEnabled(false);
    mnuSaveAs->setEnabled(false);
    QMenu* mnuHelp = menuBar()->addMenu(tr("&Help"));
    mnuHelp->setObjectName(QStringLiteral("mnuHelp"));
    AddCommand(mnuHelp, "mnuAbout", tr("&About"), &frmMain::mnuAbout_Click);
}

QAction* frmMain::AddCommand(QMenu* menu, const char* name, const QString& caption, void (frmMain::*command)())
{
    QAction* action = menu->addAction(caption);
    action->setObjectName(QLatin1String(name));
    connect(action, &QAction::triggered, this, command);
    return action;
}

void frmMain::BuildToolbar()
{
    QToolBar* toolbar = MakeToolbar(QStringLiteral("Toolbar1"),
                                    {{"New", "new", QT_TR_NOOP("Start New Puzzle")},
                                     {"Open", "open", QT_TR_NOOP("Open Saved Puzzle")},
                                     {"Save", "save", QT_TR_NOOP("Save Puzzle")},
                                     {"Delete", "delete", QT_TR_NOOP("Delete Word")}},
                                    Client);
    looks::Place(*toolbar, 0, 0, ClientWidth, 360);
    connect(toolbar, &QToolBar::actionTriggered, this,
            [this](const QAction* action) { Toolbar1_ButtonClick(ToolbarIndex(*action)); });
}

void frmMain::BuildTitle()
{
    lblBigTitle = AddLabel("lblBigTitle", tr("New Puzzle"));
    lblBigTitle->setFont(looks::BoldItalic(looks::Serif, 26.25));
    lblBigTitle->setAlignment(Qt::AlignCenter);
    looks::Place(*lblBigTitle, 120, 420, ClientWidth - 240, 735);

    looks::Place(*AddLabel("lblTitle", tr("Title:")), Margin, TitleRow, BoxLeft - Margin, RowHeight);
    txtTitle = new EntryBox({document::FilterTitle, wordlist::MaxTitleLength}, Client);
    txtTitle->setObjectName(QStringLiteral("txtTitle"));
    txtTitle->setAccessibleName(tr("Title"));
    txtTitle->setText(tr("New Puzzle"));
    looks::Place(*txtTitle, BoxLeft, TitleRow, BoxWidth, RowHeight);
    connect(txtTitle, &QLineEdit::textChanged, this, &frmMain::txtTitle_Change);
    connect(txtTitle, &EntryBox::Clicked, this, &frmMain::txtTitle_Click);
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget* /*old*/, QWidget* now) { FocusMoved(now); });
}

void frmMain::BuildWordEntry()
{
    looks::Place(*AddLabel("lblWord", tr("Word:")), Margin, WordRow, BoxLeft - Margin, RowHeight);
    txtNewWords = new WordBox(Client);
    txtNewWords->setObjectName(QStringLiteral("txtNewWords"));
    txtNewWords->setAccessibleName(tr("Word"));
    looks::Place(*txtNewWords, BoxLeft, WordRow, BoxWidth, RowHeight);
}

void frmMain::BuildCommandButtons()
{
    cmdEnter = AddButton("cmdEnter", tr("Enter"), &frmMain::cmdEnter_Click);
    cmdEnter->setAutoDefault(false); // it would cease to be the default once the focus had passed over it
    cmdEnter->setDefault(true);
    looks::Place(*cmdEnter, BoxLeft + BoxWidth + 150, WordRow, 1950, RowHeight);
    cmdCreatePuzzle = AddButton("cmdCreatePuzzle", tr("Create Puzzle"), &frmMain::cmdCreatePuzzle_Click);
    cmdCreatePuzzle->setEnabled(false);
    looks::Place(*cmdCreatePuzzle, 7680, TitleRow, 2250, WordRow + RowHeight - TitleRow);
    cmdEditWord = AddButton("cmdEditWord", tr("Edit Word"), &frmMain::EditWord);
    looks::Place(*cmdEditWord, 6885, ListHeadRow, 1470, RowHeight);
    cmdDelete = AddButton("cmdDelete", tr("Delete Word"), &frmMain::cmdDelete_Click);
    looks::Place(*cmdDelete, 8460, ListHeadRow, 1470, RowHeight);
    ShowEditButtons(false);
}

void frmMain::BuildWordList()
{
    QLabel* heading = AddLabel("lblMyWordlist", tr("My Word List"));
    heading->setFont(looks::BoldItalic(looks::Serif, 14.25));
    heading->setAlignment(Qt::AlignCenter);
    looks::Place(*heading, 3600, ListHeadRow, ClientWidth - 7200, RowHeight);

    lstWordlist = new WordList(Client);
    lstWordlist->setObjectName(QStringLiteral("lstWordlist"));
    lstWordlist->setAccessibleName(tr("My Word List"));
    looks::Place(*lstWordlist, Margin, ListTop, ClientWidth - 2 * Margin, ListHeight);
    connect(lstWordlist, &WordList::Chosen, this, &frmMain::lstWordlist_Click);

    QLabel* countLabel = AddLabel("lblWordCountLabel", tr("Word Count:"));
    countLabel->setFont(heading->font());
    countLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    looks::Place(*countLabel, 6900, BottomRow, 2250, RowHeight);
    lblWordCount = AddLabel("lblWordCount", QStringLiteral("0"));
    lblWordCount->setFont(heading->font());
    looks::Place(*lblWordCount, 9240, BottomRow, 690, RowHeight);
}

void frmMain::BuildMakerLink()
{
    auto* lblTallowick = new MakerLink(9.75, Client);
    lblTallowick->setObjectName(QStringLiteral("lblTallowick"));
    lblTallowick->setToolTip(tr("Click to go to the Tallowick website."));
    looks::Place(*lblTallowick, Margin, BottomRow + 60, 0, 270);
    lblTallowick->resize(lblTallowick->sizeHint().width() + 2, lblTallowick->height());
    QLabel* trademark = MakeTrademark(looks::BoldItalic(looks::Monospaced, 8.25), Client);
    trademark->move(lblTallowick->geometry().topRight() + QPoint(1, 0));
}

QLabel* frmMain::AddLabel(const char* name, const QString& text)
{
    auto* label = new QLabel(text, Client);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    return label;
}

QPushButton* frmMain::AddButton(const char* name, const QString& caption, void (frmMain::*command)())
{
    auto* button = new QPushButton(caption, Client);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(true); // Return on it presses it
    connect(button, &QPushButton::clicked, this, command);
    return button;
}

void frmMain::Form_Load()
{
    Saved = true;
    TitleSet = false;
    setWindowTitle(tr("Glyphgrove - New Puzzle"));
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
    QMainWindow::showEvent(event);
    if (!event->spontaneous()) // the desktop's own un-minimising is none of these
        Form_Activate();
}

/// The default button for every control that has no use for the Return key itself.
void frmMain::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        cmdEnter->click();
    else
        QMainWindow::keyPressEvent(event);
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
