#include "app/desktop/file_dialog.h"

#include "app/desktop/message_boxes.h"
#ifdef Q_OS_WIN
#include "app/desktop/file_dialog_windows.h"
#endif

#include <QApplication>
#include <QDir>
#include <QFileInfo>

namespace {

bool FolderExists(const QString& path)
{
    return QFileInfo(path).absoluteDir().exists();
}

} // namespace

FileDialog::FileDialog(AcceptMode mode, const QList<Filter>& filters, const QDir& folder, const QString& name,
                       QWidget* owner)
    : QFileDialog(owner)
{
    setAcceptMode(mode);
    setFileMode(QFileDialog::AnyFile);
    setWindowTitle(mode == AcceptOpen ? tr("Open") : tr("Save As")); // some desktops show none of their own
    QStringList names;
    for (const Filter& filter : filters)
        names += QString("%1 (%2)").arg(filter.label, filter.pattern);
    setOption(HideNameFilterDetails); // the pattern just added: a label may name another
    setNameFilters(names);
    setDirectory(folder);
    if (!name.isEmpty())
        selectFile(name);
}

QString FileDialog::Ask(AcceptMode mode, const QList<Filter>& filters, const QDir& folder, const QString& name,
                        QWidget* owner, const QString& objectName)
{
#ifdef Q_OS_WIN
    if (!QApplication::testAttribute(Qt::AA_DontUseNativeDialogs))
        return file_dialog_windows::AskForFile(mode, filters, folder, name, *owner);
#endif
    FileDialog dialog(mode, filters, folder, name, owner);
    dialog.setObjectName(objectName);
    return dialog.Choose();
}

QString FileDialog::Choose()
{
    if (exec() != QDialog::Accepted || selectedFiles().isEmpty())
        return {};
    const QString path = selectedFiles().constFirst();
    return FolderExists(path) ? path : QString();
}

void FileDialog::accept()
{
    const QStringList files = selectedFiles();
    if (!files.isEmpty() && !FolderExists(files.constFirst()))
        message_boxes::Tell(this, tr("There is no such folder:\n%1").arg(QFileInfo(files.constFirst()).path()));
    else
        QFileDialog::accept();
}
