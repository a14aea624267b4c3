#pragma once

#include "view/grid_drawing.h"

#include <QWidget>

#include <vector>

/// The surface that shows a puzzle's grid. It keeps what was written on it.
class PuzzleSurface : public QWidget {
    Q_OBJECT

public:
    explicit PuzzleSurface(QWidget* parent);

    /// Adds letters, at positions in twips.
    void Write(const std::vector<view::DrawnLetter>& letters);
    /// The letters, one text per row, with spaces between them.
    QStringList Rows() const;
    /// The place of row `row`, counted from 0, on the screen in pixels.
    QRect RowRect(int row) const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::vector<view::DrawnLetter> Letters;
};
