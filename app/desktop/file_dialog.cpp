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

QString FileDialog::Ask(AcceptMode mode, const QList<Filter>& filters, const QDir& folder, const QString& name,
                        QWidget* owner, const QString& objectName)
{
#ifdef Q_OS_WIN
    if (!QApplication::testAttribute(Qt::AA_DontUseNativeDialogs))
        return AskWindowsForFile(mode, filters, folder, name, *owner);
#endif
    FileDialog dialog(owner);
    dialog.setObjectName(objectName);
    dialog.setAcceptMode(mode);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setWindowTitle(mode == AcceptOpen ? tr("Open") : tr("Save As")); // some desktops add none of their own
    QStringList names;
    for (const Filter& filter : filters)
        names += QString("%1 (%2)").arg(filter.label, filter.pattern);
    dialog.setOption(HideNameFilterDetails); // the pattern just added; the label may name another
    dialog.setNameFilters(names);
    dialog.setDirectory(folder);
    dialog.selectFile(name);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    const QString path = dialog.selectedFiles().constFirst();
    return FolderExists(path) ? path : QString();
}

void FileDialog::accept()
{
    const QStringList files = selectedFiles();
    if (!files.isEmpty() && !FolderExists(files.constFirst()))
        ShowMessage(this, tr("There is no such folder:\n%1").arg(QFileInfo(files.constFirst()).path()));
    else
        QFileDialog::accept();
}
