#include "app/desktop/file_dialog_windows.h"

#include <QDialog>

#include <shobjidl.h>

#include <vector>
#include <wrl/client.h>

namespace {

using Microsoft::WRL::ComPtr;

const wchar_t* Wide(const QString& text) { return reinterpret_cast<const wchar_t*>(text.utf16()); }

void SetFilters(IFileDialog& dialog, const QList<FileDialog::Filter>& filters)
{
    std::vector<COMDLG_FILTERSPEC> types;
    for (const FileDialog::Filter& filter : filters)
        types.push_back({Wide(filter.label), Wide(filter.pattern)});
    dialog.SetFileTypes(static_cast<UINT>(types.size()), types.data());
}

void SetFolder(IFileDialog& dialog, const QString& path)
{
    ComPtr<IShellItem> folder;
    const QString native = QDir::toNativeSeparators(path);
    if (SUCCEEDED(SHCreateItemFromParsingName(Wide(native), nullptr, IID_PPV_ARGS(&folder))))
        dialog.SetFolder(folder.Get());
}

QString ChosenPath(IFileDialog& dialog)
{
    ComPtr<IShellItem> chosen;
    wchar_t* text = nullptr;
    if (FAILED(dialog.GetResult(&chosen)) || FAILED(chosen->GetDisplayName(SIGDN_FILESYSPATH, &text)))
        return {};
    const QString path = QDir::fromNativeSeparators(QString::fromWCharArray(text));
    CoTaskMemFree(text);
    return path;
}

} // namespace

QString AskWindowsForFile(const FileDialog::Question& question, QWidget& owner)
{
    const bool save = question.mode == QFileDialog::AcceptSave;
    ComPtr<IFileDialog> dialog;
    CoCreateInstance(save ? CLSID_FileSaveDialog : CLSID_FileOpenDialog, nullptr, CLSCTX_INPROC_SERVER,
                     IID_PPV_ARGS(&dialog));
    if (!dialog)
        return {};
    const DWORD options = FOS_FORCEFILESYSTEM | FOS_PATHMUSTEXIST | FOS_NOCHANGEDIR | FOS_DONTADDTORECENT;
    dialog->SetOptions(save ? options | FOS_OVERWRITEPROMPT | FOS_NOREADONLYRETURN : options);
    dialog->SetTitle(Wide(question.title));
    SetFilters(*dialog.Get(), question.filters);
    if (!question.suffix.isEmpty())
        dialog->SetDefaultExtension(Wide(question.suffix));
    const QFileInfo proposed(question.name);
    SetFolder(*dialog.Get(), proposed.isAbsolute() ? proposed.path() : question.folder.path());
    const QString name = proposed.isAbsolute() ? proposed.fileName() : question.name;
    dialog->SetFileName(Wide(name));
    // The toolkit gets a dialog of its own: it closes menus, and no window below takes commands or closes.
    QDialog standIn(&owner);
    standIn.setAttribute(Qt::WA_DontShowOnScreen);
    standIn.setModal(true);
    standIn.show();
    const auto window = reinterpret_cast<HWND>(owner.window()->winId());
    EnableWindow(window, TRUE); // Windows disables it again, and gives the focus back only to what it disabled itself
    const HRESULT answer = dialog->Show(window);
    dialog->ClearClientData(); // the folder, size and position that Windows has just stored for the next run
    return answer == S_OK ? ChosenPath(*dialog.Get()) : QString();
}
