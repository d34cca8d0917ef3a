// The common dialog for files. The main window owns the one that the whole program uses; whoever uses it sets
// filter, title and file name; a BookFilterAfterwards then brings the filter of books back.
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

// Sets the filter back to that of books when it goes, also when a fault ends what it belongs to: the offer to
// save the book may follow.
class BookFilterAfterwards {
  public:
    explicit BookFilterAfterwards(CommonDialog& dialog) : dialog_(dialog) {}
    ~BookFilterAfterwards() { dialog_.Filter = kBookFilter; }
    BookFilterAfterwards(const BookFilterAfterwards&) = delete;
    BookFilterAfterwards& operator=(const BookFilterAfterwards&) = delete;

  private:
    CommonDialog& dialog_;
};

}  // namespace lindrel
