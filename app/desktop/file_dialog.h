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

    struct Question {
        AcceptMode mode;
        QString title;
        QList<Filter> filters;
        QDir folder;
        QString name;        ///< what the dialog first shows: a name in `folder` or a path
        QString suffix = {}; ///< added to a name that has none; empty to leave every name as typed
        QString objectName = "dlgFileName";
    };

    /// Runs a dialog over `owner`. Returns the chosen path, or nothing when the user cancels or the path's folder
    /// does not exist.
    static QString Ask(const Question& question, QWidget* owner);

protected:
    /// A typed path may name a file that does not exist, but its folder must exist. Quotes are part of a name.
    void accept() override;

private:
    using QFileDialog::QFileDialog;

    QString Path() const;
};
