#pragma once

#include <QDir>
#include <QFileDialog>

/// The desktop's dialog for puzzle files, serving both Open and Save As.
class FileDialog : public QFileDialog {
    Q_OBJECT

public:
    struct Filter {
        QString label; ///< shown as it is
        QString pattern;
    };

    /// `name` is the name, in `folder`, or the path that the dialog shows at first.
    FileDialog(AcceptMode mode, const QList<Filter>& filters, const QDir& folder, const QString& name,
               QWidget* owner);

    /// Runs a dialog of these, named `objectName`, or the desktop's own where it does the same. The chosen path, or
    /// empty as below.
    static QString Ask(AcceptMode mode, const QList<Filter>& filters, const QDir& folder, const QString& name,
                       QWidget* owner, const QString& objectName = "dlgFileName");

    /// Runs the dialog. The chosen path as it was given, or empty when the user cancelled or chose a path in
    /// a folder that does not exist.
    QString Choose();

protected:
    /// A typed path may name a file that does not exist, but not a folder that does not.
    void accept() override;
};
