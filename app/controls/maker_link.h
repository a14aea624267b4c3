#pragma once

#include <QLabel>

/// The maker's name in dark red on white. A click, Enter or the space bar opens the maker's page in the user's
/// browser; a failure goes unnoticed.
class MakerLink : public QLabel {
    Q_OBJECT

public:
    MakerLink(double points, QWidget* parent);

    static void OpenMakersPage();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

/// Makes a link as wide as its text and puts a small "TM" beside it. Place the link first.
void PlaceTrademark(MakerLink& link, const QFont& font);
