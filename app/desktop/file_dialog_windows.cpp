#include "app/desktop/file_dialog_windows.h"

#include "app/desktop/message_boxes.h"

#include <shobjidl.h>

#include <memory>
#include <vector>

namespace file_dialog_windows {

namespace {

template <class T>
struct Release {
    void operator()(T* object) const { object->Release(); }
};
template <class T>
using Owned = std::unique_ptr<T, Release<T>>;

const wchar_t* Wide(const QString& text)
{
    return reinterpret_cast<const wchar_t*>(text.utf16());
}

Owned<IFileDialog> Create(const CLSID& kind)
{
    void* dialog = nullptr;
    CoCreateInstance(kind, nullptr, CLSCTX_INPROC_SERVER, IID_IFileDialog, &dialog);
    return Owned<IFileDialog>(static_cast<IFileDialog*>(dialog));
}

void SetFilters(IFileDialog& dialog, const QList<FileDialog::Filter>& filters)
{
    std::vector<COMDLG_FILTERSPEC> types;
    for (const FileDialog::Filter& filter : filters)
        types.push_back({Wide(filter.label), Wide(filter.pattern)});
    dialog.SetFileTypes(static_cast<UINT>(types.size()), types.data());
}

void SetFolder(IFileDialog& dialog, const QString& path)
{
    void* folder = nullptr;
    const QString native = QDir::toNativeSeparators(path);
    if (SUCCEEDED(SHCreateItemFromParsingName(Wide(native), nullptr, IID_IShellItem, &folder)))
        dialog.SetFolder(Owned<IShellItem>(static_cast<IShellItem*>(folder)).get());
}

/// What a call that returns a path or a name returned.
template <class Get>
QString Path(Get get)
{
    wchar_t* text = nullptr;
    if (FAILED(get(&text)))
        return {};
    const QString path = QDir::fromNativeSeparators(QString::fromWCharArray(text));
    CoTaskMemFree(text);
    return path;
}

QString ChosenPath(IFileDialog& dialog)
{
    IShellItem* item = nullptr;
    if (FAILED(dialog.GetResult(&item)))
        return {};
    const Owned<IShellItem> chosen(item);
    return Path([&](wchar_t** text) { return chosen->GetDisplayName(SIGDN_FILESYSPATH, text); });
}

/// Takes down the name that the user gives, which a dialog of Wine's knows no more when it has closed.
class GivenName final : public IFileDialogEvents {
public:
    QString Text;

    HRESULT STDMETHODCALLTYPE OnFileOk(IFileDialog* dialog) override
    {
        Text = QFileInfo(Path([&](wchar_t** text) { return dialog->GetFileName(text); })).fileName();
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE OnFolderChanging(IFileDialog*, IShellItem*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnFolderChange(IFileDialog*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnSelectionChange(IFileDialog*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnTypeChange(IFileDialog*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnShareViolation(IFileDialog*, IShellItem*, FDE_SHAREVIOLATION_RESPONSE*) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE OnOverwrite(IFileDialog*, IShellItem*, FDE_OVERWRITE_RESPONSE*) override
    {
        return E_NOTIMPL;
    }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID kind, void** object) override
    {
        const bool known = kind == IID_IFileDialogEvents || kind == IID_IUnknown;
        *object = known ? this : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; } // outlives its dialog
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
};

/// Wine adds the filter's extension to a new name, which Windows does not, and asks for no more than that name before
/// it replaces a file.
QString WithoutAddedExtension(const QString& path, const QString& given, QWidget& owner)
{
    const QFileInfo chosen(path);
    if (chosen.exists() || chosen.completeBaseName() != given)
        return path;
    const QFileInfo meant(chosen.dir(), given);
    const bool replaces = meant != chosen && meant.exists();
    const QString question = QString("%1 already exists.\nDo you want to replace it?").arg(given);
    return !replaces || message_boxes::Confirm(&owner, question, program::Name) ? meant.filePath() : QString();
}

} // namespace

QString AskForFile(QFileDialog::AcceptMode mode, const QList<FileDialog::Filter>& filters, const QDir& folder,
                   const QString& name, QWidget& owner)
{
    const bool save = mode == QFileDialog::AcceptSave;
    GivenName given;
    const auto dialog = Create(save ? CLSID_FileSaveDialog : CLSID_FileOpenDialog);
    if (!dialog)
        return {};
    const DWORD options = FOS_FORCEFILESYSTEM | FOS_PATHMUSTEXIST | FOS_NOCHANGEDIR | FOS_DONTADDTORECENT;
    dialog->SetOptions(save ? options | FOS_OVERWRITEPROMPT : options);
    dialog->SetTitle(save ? L"Save As" : L"Open");
    SetFilters(*dialog, filters);
    const QFileInfo proposed(name);
    SetFolder(*dialog, proposed.isAbsolute() ? proposed.path() : folder.path());
    dialog->SetFileName(Wide(proposed.isAbsolute() ? proposed.fileName() : name));
    DWORD advice = 0;
    dialog->Advise(&given, &advice);
    const HRESULT answer = dialog->Show(reinterpret_cast<HWND>(owner.window()->winId()));
    dialog->ClearClientData(); // the folder, the size and the place that the desktop has just kept for the next run
    const QString path = answer == S_OK ? ChosenPath(*dialog) : QString();
    return save && !path.isEmpty() ? WithoutAddedExtension(path, given.Text, owner) : path;
}

} // namespace file_dialog_windows
