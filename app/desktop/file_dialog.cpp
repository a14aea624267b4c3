#include "app/desktop/file_dialog.h"

#include "app/desktop/message_boxes.h"
#ifdef Q_OS_WIN
#include "app/desktop/file_dialog_windows.h"
#endif

#include <QApplication>
#include <QLineEdit>

namespace {

bool FolderExists(const QString& path) { return QFileInfo(path).absoluteDir().exists(); }

} // namespace

QString FileDialog::Ask(const Question& question, QWidget* owner)
{
#ifdef Q_OS_WIN
    if (!QApplication::testAttribute(Qt::AA_DontUseNativeDialogs))
        return AskWindowsForFile(question, *owner);
#endif
    FileDialog dialog(owner);
    dialog.setObjectName(question.objectName);
    dialog.setAcceptMode(question.mode);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setWindowTitle(question.title); // some desktops add none of their own
    QStringList names;
    for (const Filter& filter : question.filters)
        names += QString("%1 (%2)").arg(filter.label, filter.pattern);
    dialog.setOption(HideNameFilterDetails); // the pattern just added; the label may name another
    dialog.setNameFilters(names);
    dialog.setDefaultSuffix(question.suffix);
    dialog.setDirectory(question.folder);
    dialog.selectFile(question.name);
    const QString path = dialog.exec() == Accepted ? dialog.Path() : QString();
    return FolderExists(path) ? path : QString();
}

/// The toolkit takes a text with quotes for a list of names.
QString FileDialog::Path() const
{
    const auto* box = findChild<QLineEdit*>("fileNameEdit");
    const bool quotes = box != nullptr && box->text().contains('"');
    return quotes ? directory().absoluteFilePath(box->text()) : selectedFiles().value(0);
}

void FileDialog::accept()
{
    const QString path = Path();
    if (!FolderExists(path))
        ShowMessageBox(this, tr("There is no such folder:\n%1").arg(QFileInfo(path).path()));
    else if (!path.contains('"') || QFileInfo(path).isDir())
        QFileDialog::accept();
    else if (acceptMode() == AcceptOpen || !QFileInfo::exists(path) ||
             ShowMessageBox(this,
                            tr("%1 already exists.\nDo you want to replace it?").arg(QFileInfo(path).fileName()),
                            windowTitle(), QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes)
        done(Accepted);
}
