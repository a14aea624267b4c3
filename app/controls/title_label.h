#pragma once

#include <QLabel>

/// A label for titles, always plain text. It shows the whole text: in its font if it fits, else smaller, in as many
/// lines as there is room for. A text too long even for that ends in dots, and the tooltip shows more.
class TitleLabel : public QLabel {
    Q_OBJECT

public:
    explicit TitleLabel(QWidget* parent);

    void SetTitle(const QString& title);

protected:
    void paintEvent(QPaintEvent* event) override;
};
