#pragma once

#include <QLabel>

/// A label that shows its text whole: in its font where it fits, else smaller, in as many lines as there is room for.
/// What is too long even so ends in dots and is told whole by the tip.
class TitleLabel : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* event) override;
};
