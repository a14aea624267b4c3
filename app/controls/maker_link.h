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

/// Returns a row of `link` and a small "TM" beside it, for a layout of the link's window.
QLayout* WithTrademark(MakerLink& link, const QFont& font);
