#pragma once

#include "view/grid_drawing.h"

#include <QWidget>

#include <vector>

/// The surface on which a puzzle's grid is drawn. It keeps what was drawn on it, whatever happens to the
/// window above it, and tells it row by row to assistive technology as its text.
class PuzzleSurface : public QWidget {
    Q_OBJECT

public:
    explicit PuzzleSurface(QWidget* parent);

    /// Writes letters, with positions in twips, over what is there.
    void Draw(const std::vector<view::DrawnLetter>& letters);
    /// The letters drawn, a line for each row.
    QString Rows() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::vector<view::DrawnLetter> Letters;
};
