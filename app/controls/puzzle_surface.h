#pragma once

#include "view/grid_drawing.h"

#include <QWidget>

#include <vector>

/// The surface on which a puzzle's grid is drawn. It keeps what was drawn on it, whatever happens to the
/// window above it, and can tell it row by row.
class PuzzleSurface : public QWidget {
    Q_OBJECT

public:
    explicit PuzzleSurface(QWidget* parent);

    /// Writes letters, with positions in twips, over what is there.
    void Write(const std::vector<view::DrawnLetter>& letters);
    /// The letters drawn, a text for each row, with blanks between them.
    QStringList Rows() const;
    /// Where row `row`, from 0, stands on the screen, in pixels.
    QRect RowRect(int row) const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::vector<view::DrawnLetter> Letters;
};
