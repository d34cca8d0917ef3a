// The common dialog for files. The main window owns the one that the whole program uses; whoever uses it sets
// filter, title and file name, and sets the filter back to kBookFilter when done.
#pragma once

#include <string>

#include "controls/Windows.h"

namespace lindrel {

inline constexpr wchar_t kBookFilter[] = L"Lindrel fájlok (*.lnd)|*.lnd";

// The number of the fault that a cancelled dialog throws.
inline constexpr int kDialogCancelled = 32755;

class CommonDialog {
  public:
    std::wstring Filter = kBookFilter;  // "text|pattern|text|pattern..."
    std::wstring DialogTitle;
    std::wstring InitDir;
    std::wstring FileName;    // proposed before, chosen (full path) after
    std::wstring DefaultExt;  // appended by the save dialog when none is typed; without a dot

    // Show the dialog over its owner and set FileName. Throw Fault(kDialogCancelled) when the user cancels,
    // and Fault with the system's number when the dialog fails; FileName is then as it was. They ask nothing
    // about existing or missing files: the program does.
    void ShowOpen(HWND owner);
    void ShowSave(HWND owner);

  private:
    void Show(HWND owner, bool save);
};

}  // namespace lindrel
