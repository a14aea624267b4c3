#pragma once

#include <QDialog>

/// The About box: the maker, a paragraph about the program, its version. Modal, centred on its owner.
class frmAbout : public QDialog {
    Q_OBJECT

public:
    explicit frmAbout(QWidget* owner);

private:
    double Scale; ///< for the interface's font

    void BuildMaker();
    void BuildTexts();
    void BuildButton();
    void AddText(const QString& name, const QString& text, int y, int height);
};
