#pragma once

#include <QWidget>

/// A ring around the button or link that has the focus: styles mark it faintly, or just like the default button.
/// Boxes and lists show the focus themselves.
class FocusRing : public QWidget {
    Q_OBJECT

public:
    explicit FocusRing(QWidget* client);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void Follow(const QWidget* now);
};
