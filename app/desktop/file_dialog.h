#pragma once

#include <QDir>
#include <QFileDialog>

/// The dialog that asks for a file to open or to save.
class FileDialog : public QFileDialog {
    Q_OBJECT

public:
    struct Filter {
        QString label; ///< shown unchanged
        QString pattern;
    };

    /// Runs a dialog, called `objectName`, that first shows `name`, a name in `folder` or a path. Returns the chosen
    /// path unchanged, or nothing when the user cancels or the path's folder does not exist.
    static QString Ask(AcceptMode mode, const QList<Filter>& filters, const QDir& folder, const QString& name,
                       QWidget* owner, const QString& objectName = "dlgFileName");

protected:
    /// A typed path may name a file that does not exist, but its folder must exist.
    void accept() override;

private:
    using QFileDialog::QFileDialog;
};
