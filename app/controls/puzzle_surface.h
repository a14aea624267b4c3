#pragma once

#include "view/grid_drawing.h"

#include <QWidget>

#include <vector>

/// The surface that shows a puzzle's grid. Each row has a child that paints nothing: an entry of a list to screen
/// readers, its letters as its name, with spaces between them so that they are spelled out.
class PuzzleSurface : public QWidget {
    Q_OBJECT

public:
    explicit PuzzleSurface(QWidget* parent);

    /// Shows the letters of a grid, row by row, at positions in twips.
    void Write(std::vector<view::DrawnLetter> letters);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::vector<view::DrawnLetter> Letters;
};
