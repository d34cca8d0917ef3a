// Message boxes, dialogs and file dialogs of the program, found and used as a user does: by what they show
// and by their buttons. All functions may be called from the test's thread while the program's thread runs
// them.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tests/window/support/Polling.h"
#include "window/Control.h"

namespace lindrel::testing {

std::wstring ClassOf(HWND window);
inline void WaitUntilGone(HWND window) {
    WaitUntil("a window to close", [window] { return !IsWindow(window); });
}

enum class BoxIcon { None, Question, Exclamation, Error, Information };

// A message box that is on the screen.
class BoxOnScreen {
  public:
    explicit BoxOnScreen(HWND box) : box_(box) {}
    HWND Handle() const { return box_; }
    std::wstring Title() const { return TextOf(box_); }
    std::wstring Text() const;
    std::vector<int> Buttons() const;  // IDOK, IDYES, ... in tab order
    BoxIcon Icon() const;
    // Presses a button and waits until the box is gone.
    void Press(int button) const;

  private:
    HWND box_;
};

// A dialog of the program that is on the screen. Ids are those of resources/resource.h.
class DialogOnScreen {
  public:
    explicit DialogOnScreen(HWND dialog) : dialog_(dialog) {}
    HWND Handle() const { return dialog_; }
    bool IsOpen() const { return IsWindow(dialog_) != FALSE; }
    HWND Control(int id) const;  // fails when it is not there
    std::wstring Caption() const { return TextOf(dialog_); }
    std::wstring Text(int id) const { return TextOf(Control(id)); }
    // Replaces the text of a text box as typing would: the parent hears EN_CHANGE.
    void SetText(int id, const std::wstring& text) const;
    // Clicks a button. Returns at once: the handler may open a box.
    void Click(int id) const { PostMessageW(Control(id), BM_CLICK, 0, 0); }
    // Clicks and waits until the dialog is gone.
    void ClickAndWaitForClose(int id) const {
        Click(id);
        WaitForClose();
    }
    // Picks an entry of a combo box (0-based) as the user does: the parent hears CBN_SELCHANGE.
    void Pick(int combo_id, int index) const;
    int Picked(int combo_id) const { return ComboBox(Control(combo_id)).Selected(); }
    std::vector<std::wstring> ComboItems(int combo_id) const;
    bool IsChecked(int id) const { return SendMessageW(Control(id), BM_GETCHECK, 0, 0) == BST_CHECKED; }
    bool IsEnabled(int id) const { return IsWindowEnabled(Control(id)) != FALSE; }
    bool IsShown(int id) const { return IsWindowVisible(Control(id)) != FALSE; }
    // First and last character (0-based, the last excluded) of what is selected in a text box.
    std::pair<int, int> Selection(int id) const;
    // Id of the control that has the focus in the dialog's thread; waits until one has, 0 when none gets it.
    int Focus() const;
    // The description of a control's font.
    LOGFONTW Font(int id) const;
    // Esc: what the title bar's button does too.
    void Cancel() const {
        PostMessageW(dialog_, WM_CLOSE, 0, 0);
        WaitForClose();
    }
    void WaitForClose() const { WaitUntilGone(dialog_); }

  private:
    HWND dialog_;
};

// The common file dialog.
class FileDialogOnScreen {
  public:
    explicit FileDialogOnScreen(HWND dialog) : dialog_(dialog) {}
    HWND Handle() const { return dialog_; }
    std::wstring Title() const { return TextOf(dialog_); }
    std::vector<std::wstring> Filters() const;  // the descriptions
    std::wstring FileName() const;
    std::wstring Folder() const;
    // Types a path and accepts it. Returns at once: the dialog itself may ask something.
    void TypeAndPressOk(const std::wstring& path) const;
    // The same, or Cancel, and waits until the dialog is gone.
    void Accept(const std::wstring& path) const {
        TypeAndPressOk(path);
        WaitUntilGone(dialog_);
    }
    void Cancel() const {
        PostMessageW(GetDlgItem(dialog_, IDCANCEL), BM_CLICK, 0, 0);
        WaitUntilGone(dialog_);
    }

  private:
    HWND dialog_;
};

// Top-level windows of a thread, topmost first, visible ones only.
std::vector<HWND> WindowsOf(DWORD thread);

// The program's main window, waited for.
HWND WaitForMainWindow(DWORD thread);

// What is in front in a thread and takes input; wait for it with a deadline.
BoxOnScreen WaitForBox(DWORD thread);
DialogOnScreen WaitForDialog(DWORD thread, const std::wstring& caption);
FileDialogOnScreen WaitForFileDialog(DWORD thread);

// The menu that has popped up in a thread; null while there is none.
HWND PoppedUpMenu(DWORD thread);
bool IsMessageBox(HWND window);
bool IsFileDialog(HWND window);

}  // namespace lindrel::testing
