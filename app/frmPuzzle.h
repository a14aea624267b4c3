#pragma once

#include "app/controls/client_window.h"
#include "app/controls/puzzle_surface.h"
#include "app/controls/title_label.h"
#include "wordlist/limits.h"

#include <QPushButton>

#include <array>

/// The puzzle window shows one puzzle beside its word list. It holds no data: the main window fills its labels, draws
/// its grid and answers its signals. Each puzzle gets a new one.
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
    /// The window closes; the main window comes back.
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
