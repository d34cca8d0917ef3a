#include "controls/CommonDialog.h"

#include <commdlg.h>

#include <algorithm>
#include <vector>

#include "book/Faults.h"

namespace lindrel {

namespace {
constexpr std::size_t kLongestPath = 32768;
}

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

    if (!(save ? GetSaveFileNameW(&dialog) : GetOpenFileNameW(&dialog))) {
        const DWORD error = CommDlgExtendedError();
        if (error == 0) throw Fault(kDialogCancelled, L"A párbeszédablak bezárult");
        throw Fault(static_cast<int>(error), L"A fájlválasztó ablak nem nyitható meg");
    }
    FileName = path.data();
}

}  // namespace lindrel
