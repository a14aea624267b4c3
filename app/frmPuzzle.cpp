#include "app/frmPuzzle.h"

#include "app/controls/looks.h"
#include "app/controls/toolbars.h"
#include "app/desktop/application.h"
#include "app/desktop/program.h"
#include "app/desktop/window_border.h"

#include <QCloseEvent>

namespace {

constexpr int TitleWidth = 4335;
constexpr int TitleHeight = 375;
constexpr int WordHeight = 240;
constexpr int WordsPerColumn = 20;

} // namespace

frmPuzzle::frmPuzzle(QScreen* screen)
    : ClientWindow(screen), pctPuzzle(new PuzzleSurface(Client)), lblBigTitle(new TitleLabel(Client)), lblWords(),
      cmdPrint(new QPushButton(tr("Print Puzzle"), Client))
{
    setObjectName("frmPuzzle");
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint);
    setAttribute(Qt::WA_QuitOnClose, false); // the hidden main window comes back
    BuildSurface();
    BuildTitle();
    BuildWordLabels();
    BuildToolbar();
    FixClient(looks::SizeInPixels(*this, 12900, 8295));
    FixBorder(*this);
    ScrollWithArrows();
}

void frmPuzzle::BuildSurface()
{
    pctPuzzle->setObjectName("pctPuzzle");
    looks::Place(*pctPuzzle, 4800, 240, SurfaceWidth, SurfaceWidth);
}

void frmPuzzle::BuildTitle()
{
    lblBigTitle->setObjectName("lblBigTitle");
    lblBigTitle->setFont(looks::BoldItalic(looks::Serif, 15.75));
    lblBigTitle->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    SetTitle(program::NewPuzzle);
}

void frmPuzzle::BuildWordLabels()
{
    for (int i = 0; i < wordlist::MaxWords; ++i) {
        auto* label = new QLabel(Client);
        label->setObjectName(QString("lblWords%1").arg(i));
        label->setTextFormat(Qt::PlainText);
        label->setFont(looks::Font(looks::Monospaced, 8.25));
        lblWords.at(static_cast<std::size_t>(i)) = label;
        SetWord(i, QString());
    }
}

/// The toolbar covers the top of the surface, where no letter is.
void frmPuzzle::BuildToolbar()
{
    QToolBar* toolbar =
        MakeToolbar("PuzzleToolbar", tr("Puzzle"), {{"Print", tr("Print Puzzle")}, {"Back", tr("Go Back")}}, *Client,
                    [this](int index) { PuzzleToolbar_ButtonClick(index); });
    looks::Place(*toolbar, 0, 0, 12900, 360);
    toolbar->actions().first()->setShortcuts(QKeySequence::Print);
    toolbar->actions().last()->setShortcuts(QKeySequence::keyBindings(QKeySequence::Back) +
                                            QKeySequence::keyBindings(QKeySequence::Close));
    toolbar->widgetForAction(toolbar->actions().first())->setFocus();
    cmdPrint->setObjectName("cmdPrint");
    cmdPrint->hide();
    connect(cmdPrint, &QPushButton::clicked, this, Guarded([this](bool /*checked*/) { cmdPrint_Click(); }));
}

/// There is room for a second line above the words when the title needs one.
void frmPuzzle::SetTitle(const QString& title)
{
    lblBigTitle->SetTitle(title);
    const bool fits = lblBigTitle->fontMetrics().horizontalAdvance(title) <= looks::ToPixels(*this, TitleWidth);
    looks::Place(*lblBigTitle, 120, 720, TitleWidth, fits ? TitleHeight : 2 * TitleHeight);
}

void frmPuzzle::SetWord(int index, const QString& word)
{
    QLabel* label = lblWords.at(static_cast<std::size_t>(index));
    label->setText(word);
    label->setHidden(word.isEmpty()); // or screen readers would read empty labels
    const int x = index < WordsPerColumn ? 120 : 2520;
    looks::Place(*label, x, 1560 + WordHeight * (index % WordsPerColumn), 0, WordHeight);
    label->resize(label->sizeHint().width(), label->height());
}

void frmPuzzle::PuzzleToolbar_ButtonClick(int index)
{
    if (index == 1)
        cmdPrint_Click();
    else if (index == 2)
        close();
}

void frmPuzzle::cmdPrint_Click() { emit PrintRequested(); }

/// Reports the close once, even when two requests were waiting.
void frmPuzzle::closeEvent(QCloseEvent* /*event*/)
{
    if (isVisible())
        emit Unloaded();
}
