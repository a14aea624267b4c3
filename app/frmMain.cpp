#include "app/frmMain.h"

#include "app/controls/accessible.h"
#include "app/controls/looks.h"
#include "app/controls/maker_link.h"
#include "app/controls/toolbars.h"
#include "app/desktop/application.h"
#include "app/desktop/folders.h"
#include "app/desktop/message_boxes.h"
#include "app/desktop/program.h"
#include "app/frmAbout.h"
#include "document/character_set.h"

#include <QApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMenuBar>
#include <QSessionManager>

namespace {

constexpr int AllColumns = -1;

// The rows of the client area's grid. Its columns: labels, boxes, Enter, Create Puzzle.
enum Row { BigTitleRow, TitleRow, WordRow, ListHeadRow, ListRow, BottomRow };

} // namespace

frmMain::frmMain(generator::RandomSource random)
    : Grid(new QGridLayout(Client)), Folder(UsersDocuments()), Workspace(std::move(random))
{
    InstallAccessibility();
    setObjectName("frmMain");
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
    Grid->setContentsMargins(24, 4, 24, 8);
    Grid->setSpacing(8);
    Grid->setColumnStretch(1, 2); // the boxes' column
    Grid->setColumnStretch(2, 1);
    Grid->setColumnStretch(3, 1);
    Grid->setRowStretch(ListRow, 1);
    BuildMenus();
    BuildToolbar();
    BuildTitle();
    BuildWordEntry();
    BuildCommandButtons();
    BuildWordList();
    BuildMakerLink();
    FixClient(looks::SizeInPixels(*this, 10290, 6420));
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
    Grid->setMenuBar(MakeToolbar("Toolbar1", tr("Puzzle and words"),
                                 {{"New", tr("Start New Puzzle")},
                                  {"Open", tr("Open Saved Puzzle")},
                                  {"Save", tr("Save Puzzle")},
                                  {"Delete", tr("Delete Word")}},
                                 *Client, [this](int index) { Toolbar1_ButtonClick(index); }));
}

void frmMain::BuildTitle()
{
    lblBigTitle = new TitleLabel(Client);
    lblBigTitle->SetTitle(program::NewPuzzle);
    lblBigTitle->setFont(looks::BoldItalic(looks::Serif, 26.25));
    lblBigTitle->setAlignment(Qt::AlignCenter);
    lblBigTitle->setFixedHeight(lblBigTitle->sizeHint().height() * 5 / 4); // room for two lines in a smaller font
    Add(lblBigTitle, "lblBigTitle", BigTitleRow, 0, AllColumns);

    txtTitle = new TextBox({document::TakesInTitle, document::MaxTitleLength}, Client);
    txtTitle->setAccessibleName(tr("Title"));
    txtTitle->setText(program::NewPuzzle);
    Add(txtTitle, "txtTitle", TitleRow, 1);
    Add(NewLabel(tr("Title:"), txtTitle), "lblTitle", TitleRow, 0);
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
    Add(txtNewWords, "txtNewWords", WordRow, 1);
    Add(NewLabel(tr("Word:"), txtNewWords), "lblWord", WordRow, 0);
}

void frmMain::BuildCommandButtons()
{
    cmdEnter = NewButton("cmdEnter", tr("Enter (EditMode)"), &frmMain::cmdEnter_Click);
    cmdEnter->setMinimumWidth(cmdEnter->sizeHint().width());
    LeaveEditMode();
    cmdEnter->setAutoDefault(false); // or it stops being the default once the focus has passed over it
    cmdEnter->setDefault(true);
    Grid->addWidget(cmdEnter, WordRow, 2);
    cmdCreatePuzzle = NewButton("cmdCreatePuzzle", tr("Create Puzzle"), &frmMain::cmdCreatePuzzle_Click);
    cmdCreatePuzzle->setEnabled(false);
    Grid->addWidget(cmdCreatePuzzle, TitleRow, 3, 2, 1);

    cmdEditWord = NewButton("cmdEditWord", tr("Edit Word"), &frmMain::EditWord);
    cmdDelete = NewButton("cmdDelete", tr("Delete Word"), &frmMain::cmdDelete_Click);
    auto* editButtons = new QHBoxLayout;
    editButtons->addWidget(cmdEditWord);
    editButtons->addWidget(cmdDelete);
    Grid->addLayout(editButtons, ListHeadRow, 2, 1, 2, Qt::AlignRight);
    for (const Row row : {TitleRow, WordRow, ListHeadRow})
        Grid->setRowMinimumHeight(row, std::max(26, cmdDelete->sizeHint().height()));
    ShowEditButtons(false);
}

void frmMain::BuildWordList()
{
    lstWordlist = new WordList(Client);
    lstWordlist->setAccessibleName(tr("My Word List"));
    Add(lstWordlist, "lstWordlist", ListRow, 0, AllColumns);
    connect(lstWordlist, &WordList::Chosen, this, Guarded([this](int position) { lstWordlist_Click(position); }));
    QLabel* heading = NewLabel(tr("My Word List"), lstWordlist);
    heading->setFont(looks::BoldItalic(looks::Serif, 14.25));
    heading->setAlignment(Qt::AlignCenter);
    Add(heading, "lblMyWordlist", ListHeadRow, 0, AllColumns);

    auto* counter = new QHBoxLayout;
    QLabel* countLabel = NewLabel(tr("Word Count:"));
    countLabel->setObjectName("lblWordCountLabel");
    lblWordCount = NewLabel(QString());
    lblWordCount->setObjectName("lblWordCount");
    for (QLabel* label : {countLabel, lblWordCount}) {
        label->setFont(heading->font());
        counter->addWidget(label);
    }
    Grid->addLayout(counter, BottomRow, 2, 1, 2, Qt::AlignRight);
    WordCounter();
}

void frmMain::BuildMakerLink()
{
    auto* lblTallowick = new MakerLink(9.75, Client);
    lblTallowick->setObjectName("lblTallowick");
    lblTallowick->setToolTip(tr("Click to go to the Tallowick website."));
    Grid->addLayout(WithTrademark(*lblTallowick, looks::BoldItalic(looks::Monospaced, 8.25)), BottomRow, 0, 1, 2,
                    Qt::AlignLeft | Qt::AlignVCenter);
}

void frmMain::Add(QWidget* control, const char* name, int row, int column, int columns)
{
    control->setObjectName(name);
    Grid->addWidget(control, row, column, 1, columns);
}

QLabel* frmMain::NewLabel(const QString& text, QWidget* buddy)
{
    auto* label = new QLabel(text, Client);
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(buddy);
    return label;
}

QPushButton* frmMain::NewButton(const char* name, const QString& caption, void (frmMain::*command)())
{
    auto* button = new QPushButton(caption, Client);
    button->setObjectName(name);
    button->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Preferred); // as high as its row
    button->setAutoDefault(true);                                        // Return presses it when it has the focus
    connect(button, &QPushButton::clicked, this, Guarded([=, this](bool /*checked*/) { (this->*command)(); }));
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
        ShowMessageBox(this, tr("Button not in use yet"));
    }
}

void frmMain::mnuAbout_Click()
{
    frmAbout(this).exec();
    Form_Activate();
}
