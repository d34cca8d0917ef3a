// Message boxes, dialogs and file dialogs of the program, found and used as a user does: by what they show
// and by their buttons. All functions may be called from the test's thread while the program's thread runs
// the box. They throw std::runtime_error when a control is missing, and DeadlinePassed when what they wait
// for does not come.
#pragma once

#include "window/Windows.h"

#include <commdlg.h>
#include <dlgs.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "tests/window/support/RealKeys.h"
#include "tests/window/support/Text.h"
#include "window/Control.h"

namespace lindrel::testing {

inline std::wstring ClassOf(HWND window) {
    wchar_t name[64] = L"";
    GetClassNameW(window, name, 64);
    return name;
}

inline std::vector<HWND> ChildrenOf(HWND parent) {
    std::vector<HWND> children;
    for (HWND child = GetWindow(parent, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
        children.push_back(child);
    return children;
}

inline HWND ChildOf(HWND parent, int id) {
    const HWND child = GetDlgItem(parent, id);
    if (child == nullptr) throw std::runtime_error("there is no control " + std::to_string(id));
    return child;
}

inline std::vector<std::wstring> ComboEntries(HWND combo) {
    std::vector<std::wstring> items;
    for (int i = 0; i < ComboBox(combo).Count(); ++i) items.push_back(ComboBox(combo).Item(i));
    return items;
}

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
    std::wstring Text() const {
        for (const HWND child : ChildrenOf(box_))
            if (ClassOf(child) == L"Static" && !IsPicture(child)) return TextOf(child);
        return {};
    }
    // IDOK, IDYES, ... in tab order.
    std::vector<int> Buttons() const {
        std::vector<int> ids;
        for (const HWND child : ChildrenOf(box_))
            if (ClassOf(child) == L"Button" && IsWindowVisible(child)) ids.push_back(GetDlgCtrlID(child));
        return ids;
    }
    BoxIcon Icon() const {
        HICON shown = nullptr;
        for (const HWND child : ChildrenOf(box_))
            if (IsPicture(child) && IsWindowVisible(child))
                shown = reinterpret_cast<HICON>(SendMessageW(child, STM_GETICON, 0, 0));
        if (shown == nullptr) return BoxIcon::None;
        if (shown == LoadIconW(nullptr, IDI_QUESTION)) return BoxIcon::Question;
        if (shown == LoadIconW(nullptr, IDI_EXCLAMATION)) return BoxIcon::Exclamation;
        if (shown == LoadIconW(nullptr, IDI_HAND)) return BoxIcon::Error;
        if (shown == LoadIconW(nullptr, IDI_ASTERISK)) return BoxIcon::Information;
        throw std::runtime_error("a message box shows an icon that is not one of the system's");
    }
    // Presses a button and waits until the box is gone.
    void Press(int button) const {
        PostMessageW(ChildOf(box_, button), BM_CLICK, 0, 0);
        WaitUntilGone(box_);
    }

  private:
    static bool IsPicture(HWND window) {
        return ClassOf(window) == L"Static" &&
               (GetWindowLongPtrW(window, GWL_STYLE) & SS_TYPEMASK) == SS_ICON;
    }

    HWND box_;
};

// A dialog of the program that is on the screen. Ids are those of resources/resource.h.
class DialogOnScreen {
  public:
    explicit DialogOnScreen(HWND dialog) : dialog_(dialog) {}
    HWND Handle() const { return dialog_; }
    bool IsOpen() const { return IsWindow(dialog_) != FALSE; }
    HWND Control(int id) const { return ChildOf(dialog_, id); }
    std::wstring Caption() const { return TextOf(dialog_); }
    std::wstring Text(int id) const { return TextOf(Control(id)); }
    // Replaces the text of a text box as typing would: the parent gets EN_CHANGE.
    void SetText(int id, const std::wstring& text) const {
        SendMessageW(Control(id), EM_SETSEL, 0, -1);
        SendMessageW(Control(id), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
    }
    // Clicks a button. Returns at once: the handler may open a box.
    void Click(int id) const { PostMessageW(Control(id), BM_CLICK, 0, 0); }
    // Clicks and waits until the dialog is gone.
    void ClickAndWaitForClose(int id) const {
        Click(id);
        WaitForClose();
    }
    // Picks an entry of a combo box (0-based) as the user does: the parent gets CBN_SELCHANGE.
    void Pick(int combo_id, int index) const {
        const HWND combo = Control(combo_id);
        SendMessageW(combo, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
        SendMessageW(dialog_, WM_COMMAND, MAKEWPARAM(combo_id, CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(combo));
    }
    int Picked(int combo_id) const { return ComboBox(Control(combo_id)).Selected(); }
    std::vector<std::wstring> ComboItems(int combo_id) const { return ComboEntries(Control(combo_id)); }
    bool IsChecked(int id) const { return SendMessageW(Control(id), BM_GETCHECK, 0, 0) == BST_CHECKED; }
    bool IsEnabled(int id) const { return IsWindowEnabled(Control(id)) != FALSE; }
    bool IsShown(int id) const { return IsWindowVisible(Control(id)) != FALSE; }
    // What is selected in a text box: the offsets of its first character and of the one after the last.
    std::pair<int, int> Selection(int id) const {
        DWORD start = 0;
        DWORD end = 0;
        SendMessageW(Control(id), EM_GETSEL, reinterpret_cast<WPARAM>(&start),
                     reinterpret_cast<LPARAM>(&end));
        return {static_cast<int>(start), static_cast<int>(end)};
    }
    // Id of the control that has the focus in the dialog's thread; waits until one has, 0 if none gets it.
    int Focus() const {
        const DWORD thread = GetWindowThreadProcessId(dialog_, nullptr);
        HWND focus = nullptr;
        // While a window comes to the front the window manager can leave nobody with the focus for a moment.
        Eventually([&] { return (focus = FocusOfThread(thread)) != nullptr; });
        return focus != nullptr ? GetDlgCtrlID(focus) : 0;
    }
    // The description of a control's font.
    LOGFONTW Font(int id) const {
        LOGFONTW description{};
        EXPECT_NE(GetObjectW(reinterpret_cast<HFONT>(SendMessageW(Control(id), WM_GETFONT, 0, 0)),
                             sizeof description, &description),
                  0);
        return description;
    }
    // Esc; the title bar's button does the same.
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
    std::vector<std::wstring> Filters() const {
        return ComboEntries(GetDlgItem(dialog_, cmb1));
    }  // descriptions
    std::wstring FileName() const { return TextOf(NameField()); }
    std::wstring Folder() const {
        wchar_t path[MAX_PATH] = L"";
        SendMessageW(dialog_, CDM_GETFOLDERPATH, MAX_PATH, reinterpret_cast<LPARAM>(path));
        return path;
    }
    // The box of the file's name; nullptr in a dialog of another kind.
    HWND NameField() const {
        const HWND combo = GetDlgItem(dialog_, cmb13);
        return combo != nullptr ? combo : GetDlgItem(dialog_, edt1);
    }
    // Types a path and accepts it. Returns at once: the dialog itself may ask something.
    void TypeAndPressOk(const std::wstring& path) const {
        SendMessageW(NameField(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(path.c_str()));
        PostMessageW(ChildOf(dialog_, IDOK), BM_CLICK, 0, 0);
    }
    // The same, or Cancel, and waits until the dialog is gone.
    void Accept(const std::wstring& path) const {
        TypeAndPressOk(path);
        WaitUntilGone(dialog_);
    }
    void Cancel() const {
        PostMessageW(ChildOf(dialog_, IDCANCEL), BM_CLICK, 0, 0);
        WaitUntilGone(dialog_);
    }

  private:
    HWND dialog_;
};

inline bool IsDialog(HWND window) {
    return ClassOf(window) == L"#32770";
}
inline bool IsMessageBox(HWND window) {
    if (!IsDialog(window)) return false;
    bool has_button = false;
    for (const HWND child : ChildrenOf(window)) {
        const std::wstring child_class = ClassOf(child);
        if (child_class == L"Static") continue;
        if (child_class != L"Button" || GetDlgCtrlID(child) < IDOK || GetDlgCtrlID(child) > IDCONTINUE)
            return false;
        has_button = true;
    }
    return has_button;
}
inline bool IsFileDialog(HWND window) {
    return IsDialog(window) && GetDlgItem(window, cmb1) != nullptr &&
           FileDialogOnScreen(window).NameField() != nullptr;
}

// Top-level windows of a thread, topmost first, visible ones only.
inline std::vector<HWND> WindowsOf(DWORD thread) {
    std::vector<HWND> windows;
    EnumThreadWindows(
        thread,
        [](HWND window, LPARAM list) {
            if (IsWindowVisible(window)) reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&windows));
    return windows;
}
// The menu that has popped up in a thread; nullptr when there is none.
inline HWND PoppedUpMenu(DWORD thread) {
    for (const HWND window : WindowsOf(thread))
        if (ClassOf(window) == L"#32768") return window;
    return nullptr;
}

// Waits for a window of a thread that takes input and for which `found` returns true.
template <typename Found>
HWND WaitForWindow(DWORD thread, const std::string& what, Found found) {
    HWND window = nullptr;
    WaitUntil(what, [&] {
        for (const HWND candidate : WindowsOf(thread))
            if (window == nullptr && IsWindowEnabled(candidate) && found(candidate)) window = candidate;
        return window != nullptr;
    });
    return window;
}
inline HWND WaitForMainWindow(DWORD thread) {
    return WaitForWindow(thread, "the main window",
                         [](HWND window) { return ClassOf(window) == L"frmStart"; });
}
inline BoxOnScreen WaitForBox(DWORD thread) {
    return BoxOnScreen(WaitForWindow(thread, "a message box", &IsMessageBox));
}
inline DialogOnScreen WaitForDialog(DWORD thread, const std::wstring& caption) {
    return DialogOnScreen(WaitForWindow(thread, "the dialog \"" + Narrow(caption) + "\"", [&](HWND window) {
        return IsDialog(window) && !IsMessageBox(window) && TextOf(window) == caption;
    }));
}
inline FileDialogOnScreen WaitForFileDialog(DWORD thread) {
    return FileDialogOnScreen(WaitForWindow(thread, "a file dialog", &IsFileDialog));
}

}  // namespace lindrel::testing
