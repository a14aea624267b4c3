#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>

/// The About box: the maker, a paragraph about the program, its version. Modal, centred on its owner.
class frmAbout : public QDialog {
    Q_OBJECT

public:
    explicit frmAbout(QWidget* owner);

private:
    QLabel* NewText(const QString& name, const QString& text);
    QPushButton* NewButton();
};
