#include "system/FileDialog.h"

#include <cderr.h>
#include <commdlg.h>

#include <algorithm>
#include <vector>

#include "faults/Faults.h"
#include "system/MsgBox.h"
#include "system/Shell.h"
#include "system/SystemLibrary.h"

namespace lindrel {

namespace {

constexpr std::size_t kLongestPath = 32768;

// Puts the current folder back. A dialog makes the folder that it shows the current one; the flag against
// that has no effect on the open dialog. Any program there could be started in the place of another one, and
// the folder could not be removed.
class CurrentFolder {
  public:
    CurrentFolder() : folder_(GetCurrentDirectoryW(0, nullptr), L'\0') {
        folder_.resize(GetCurrentDirectoryW(static_cast<DWORD>(folder_.size()), folder_.data()));
    }
    // Fails if the folder is no longer there; any other one is as good then.
    ~CurrentFolder() { static_cast<void>(SetCurrentDirectoryW(folder_.c_str())); }
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;

  private:
    std::wstring folder_;
};

// Shows one of the file dialogs. False if no file was chosen; `reason` is then the system's error number, 0
// if the user cancelled. The library is loaded for the first dialog, not at the start, because it loads the
// printing system too.
bool Show(bool save, OPENFILENAMEW& dialog, DWORD& reason) {
    constexpr wchar_t kLibrary[] = L"comdlg32.dll";
    const auto show =
        SystemFunction<decltype(&GetOpenFileNameW)>(kLibrary, save ? "GetSaveFileNameW" : "GetOpenFileNameW");
    const auto error = SystemFunction<decltype(&CommDlgExtendedError)>(kLibrary, "CommDlgExtendedError");
    reason = CDERR_INITIALIZATION;
    if (show == nullptr || error == nullptr) return false;
    const CurrentFolder kept;
    if (show(&dialog)) return true;
    reason = error();
    return false;
}

std::optional<std::wstring> ChooseFile(HWND owner, const FileDialogOptions& options, bool save) {
    std::wstring filter = options.Filter + L"||";
    std::replace(filter.begin(), filter.end(), L'|', L'\0');
    std::vector<wchar_t> path(kLongestPath, L'\0');
    std::copy_n(options.FileName.begin(), std::min(options.FileName.size(), path.size() - 1), path.begin());

    OPENFILENAMEW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = owner;
    dialog.lpstrFilter = filter.c_str();
    dialog.lpstrFile = path.data();
    dialog.nMaxFile = static_cast<DWORD>(path.size());
    dialog.lpstrInitialDir = options.InitDir.empty() ? nullptr : options.InitDir.c_str();
    dialog.lpstrTitle = options.Title.c_str();
    dialog.lpstrDefExt = save && !options.DefaultExt.empty() ? options.DefaultExt.c_str() : nullptr;
    dialog.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_ENABLESIZING;
    if (save) dialog.Flags |= OFN_PATHMUSTEXIST;
    if (options.AskToOverwrite) dialog.Flags |= OFN_OVERWRITEPROMPT;

    DWORD reason = 0;
    if (Show(save, dialog, reason)) return path.data();
    if (reason == 0) return std::nullopt;
    constexpr wchar_t kAskedFor[] = L"a fájlválasztó ablak megnyitása";
    MsgBox(owner, SystemFault(kAskedFor, reason).Meaning() + L"\r\nHibakód: " + std::to_wstring(reason),
           MB_OK | MB_ICONERROR, kErrorTitle);
    throw SystemFault(kAskedFor, reason);
}

}  // namespace

std::optional<std::wstring> ChooseExistingFile(HWND owner, FileDialogOptions options) {
    while (std::optional<std::wstring> path = ChooseFileToOpen(owner, options)) {
        if (FileExists(owner, *path)) return path;
        options.FileName = *path;
    }
    return std::nullopt;
}

std::optional<std::wstring> ChooseFileToOpen(HWND owner, const FileDialogOptions& options) {
    return ChooseFile(owner, options, false);
}

std::optional<std::wstring> ChooseFileToSave(HWND owner, const FileDialogOptions& options) {
    return ChooseFile(owner, options, true);
}

bool FileExists(HWND owner, const std::wstring& path) {
    if (FileIsThere(path)) return true;
    MsgBox(owner, L"A megadott fájl nem létezik", MB_OK, kErrorTitle);
    return false;
}

}  // namespace lindrel
