#pragma once

#include <QLabel>

/// The maker's name in dark red on white; a click, or Enter or the blank key with the focus on it, opens the
/// maker's page with whatever the desktop uses for web addresses. Whether that works is not looked at.
class MakerLink : public QLabel {
    Q_OBJECT

public:
    MakerLink(double points, QWidget* parent);

    static void OpenMakersPage();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

/// Makes a link that has its place as wide as its text, with a small "TM" beside it.
void PlaceTrademark(MakerLink& link, const QFont& font);
