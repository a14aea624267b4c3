#pragma once

#include "app/controls/client_window.h"
#include "app/controls/puzzle_surface.h"
#include "app/controls/title_label.h"
#include "wordlist/limits.h"

#include <QPushButton>

#include <array>

/// The puzzle window: one generated puzzle beside its word list. It holds no data of its own; the main window
/// fills its labels and draws its grid, and is told what the user wants of it. It is built for one puzzle.
class frmPuzzle : public ClientWindow {
    Q_OBJECT

public:
    static constexpr int SurfaceWidth = 7815; ///< twips; the surface is square

    explicit frmPuzzle(QScreen* screen);

    void SetTitle(const QString& title);
    /// Fills word label `index`, 0..39.
    void SetWord(int index, const QString& word);
    PuzzleSurface* pctPuzzle;

signals:
    void PrintRequested();
    /// The window closes; the main window takes its place.
    void Unloaded();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void BuildToolbar();
    void BuildTitle();
    void BuildWordLabels();
    void BuildSurface();
    void PuzzleToolbar_ButtonClick(int index);
    void cmdPrint_Click();

    TitleLabel* lblBigTitle;
    std::array<QLabel*, wordlist::MaxWords> lblWords;
    QPushButton* cmdPrint;
};
