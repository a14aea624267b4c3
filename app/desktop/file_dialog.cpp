#include "app/desktop/file_dialog.h"

#include "app/desktop/message_boxes.h"
#ifdef Q_OS_WIN
#include "app/desktop/file_dialog_windows.h"
#endif

#include <QApplication>

namespace {

bool FolderExists(const QString& path)
{
    return QFileInfo(path).absoluteDir().exists();
}

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
    const QString path = dialog.exec() == Accepted ? dialog.selectedFiles().value(0) : QString();
    return FolderExists(path) ? path : QString();
}

void FileDialog::accept()
{
    const QString path = selectedFiles().value(0);
    if (!FolderExists(path))
        ShowMessage(this, tr("There is no such folder:\n%1").arg(QFileInfo(path).path()));
    else
        QFileDialog::accept();
}
