// The system's dialogs for opening and saving files. The main window owns the object that the whole program
// shares; whoever uses it sets filter, title and file name, and a BookFilterAfterwards then brings the filter
// of books back.
#pragma once

#include <string>

#include "window/Windows.h"

namespace lindrel {

inline constexpr wchar_t kBookFilter[] = L"Lindrel fájlok (*.lnd)|*.lnd";

// The number of the fault that a cancelled dialog throws.
inline constexpr int kDialogCancelled = 32755;

class CommonDialog {
  public:
    std::wstring Filter = kBookFilter;  // "text|pattern|text|pattern..."
    std::wstring DialogTitle;
    // The folder shown first. Windows shows the one that was used last when the same is given again; so do
    // not change it from call to call: people keep their books elsewhere than beside the program.
    std::wstring InitDir;
    std::wstring FileName;    // proposed before, chosen (full path) after
    std::wstring DefaultExt;  // appended by the save dialog when none is typed; without a dot

    // Show the dialog and set FileName. Throw Fault(kDialogCancelled) when the user cancels, and Fault with
    // the system's number when the dialog fails; FileName is then as it was. The open dialog does not ask
    // about missing files, and the save dialog asks about existing ones only when it is told to.
    enum class Existing { Accept, AskToOverwrite };
    void ShowOpen(HWND owner);
    void ShowSave(HWND owner, Existing existing);

  private:
    void Show(HWND owner, bool save, DWORD flags);
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
