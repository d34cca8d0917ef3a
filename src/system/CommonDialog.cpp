#include "system/CommonDialog.h"

#include <cderr.h>
#include <commdlg.h>

#include <algorithm>
#include <vector>

#include "faults/Faults.h"
#include "system/SystemLibrary.h"

namespace lindrel {

namespace {

constexpr std::size_t kLongestPath = 32768;

// Opens one of the file dialogs; 0, or why no file was chosen. Their library brings the printing system
// along, so it is loaded when the first dialog opens.
DWORD Choose(bool save, OPENFILENAMEW& dialog) {
    constexpr wchar_t kLibrary[] = L"comdlg32.dll";
    const auto open =
        SystemFunction<decltype(&GetOpenFileNameW)>(kLibrary, save ? "GetSaveFileNameW" : "GetOpenFileNameW");
    const auto error = SystemFunction<decltype(&CommDlgExtendedError)>(kLibrary, "CommDlgExtendedError");
    if (open == nullptr || error == nullptr) return CDERR_INITIALIZATION;
    if (open(&dialog)) return 0;
    const DWORD reason = error();
    return reason != 0 ? reason : kDialogCancelled;
}

}  // namespace

void CommonDialog::ShowOpen(HWND owner) {
    Show(owner, false, 0);
}

void CommonDialog::ShowSave(HWND owner, Existing existing) {
    const DWORD prompt = existing == Existing::AskToOverwrite ? OFN_OVERWRITEPROMPT : 0;
    Show(owner, true, OFN_PATHMUSTEXIST | prompt);
}

void CommonDialog::Show(HWND owner, bool save, DWORD flags) {
    std::wstring filter = Filter + L"||";
    std::replace(filter.begin(), filter.end(), L'|', L'\0');
    std::vector<wchar_t> path(kLongestPath, L'\0');
    std::copy_n(FileName.begin(), std::min(FileName.size(), path.size() - 1), path.begin());

    OPENFILENAMEW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = owner;
    dialog.lpstrFilter = filter.c_str();
    dialog.lpstrFile = path.data();
    dialog.nMaxFile = static_cast<DWORD>(path.size());
    dialog.lpstrInitialDir = InitDir.empty() ? nullptr : InitDir.c_str();
    dialog.lpstrTitle = DialogTitle.c_str();
    dialog.lpstrDefExt = save && !DefaultExt.empty() ? DefaultExt.c_str() : nullptr;
    dialog.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_ENABLESIZING | flags;

    const DWORD reason = Choose(save, dialog);
    if (reason == kDialogCancelled) throw Fault(kDialogCancelled, L"A párbeszédablak bezárult");
    if (reason != 0) throw Fault(static_cast<int>(reason), L"A fájlválasztó ablak nem nyitható meg");
    FileName = path.data();
}

}  // namespace lindrel
