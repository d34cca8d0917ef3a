#include "tests/window/support/Boxes.h"

#include <commdlg.h>
#include <dlgs.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

#include "tests/window/support/RealKeys.h"
#include "tests/window/support/Text.h"

namespace lindrel::testing {

namespace {

constexpr wchar_t kDialogClass[] = L"#32770";

std::vector<HWND> ChildrenOf(HWND parent) {
    std::vector<HWND> children;
    for (HWND child = GetWindow(parent, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
        children.push_back(child);
    return children;
}

bool IsPicture(HWND window) {
    return ClassOf(window) == L"Static" && (GetWindowLongPtrW(window, GWL_STYLE) & SS_TYPEMASK) == SS_ICON;
}

HWND FileNameField(HWND dialog) {
    const HWND combo = GetDlgItem(dialog, cmb13);
    return combo != nullptr ? combo : GetDlgItem(dialog, edt1);
}

std::vector<std::wstring> ItemsOf(HWND combo) {
    std::vector<std::wstring> items;
    for (int i = 0; i < ComboBox(combo).Count(); ++i) items.push_back(ComboBox(combo).Item(i));
    return items;
}

template <typename Found>
HWND WaitForWindow(DWORD thread, const std::string& what, Found found) {
    HWND window = nullptr;
    WaitUntil(what, [&] {
        for (const HWND candidate : WindowsOf(thread))
            if (IsWindowEnabled(candidate) && found(candidate)) {
                window = candidate;
                return true;
            }
        return false;
    });
    return window;
}

}  // namespace

std::vector<HWND> WindowsOf(DWORD thread) {
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

bool IsMessageBox(HWND window) {
    if (ClassOf(window) != kDialogClass) return false;
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

std::wstring ClassOf(HWND window) {
    wchar_t name[64] = L"";
    GetClassNameW(window, name, 64);
    return name;
}

HWND PoppedUpMenu(DWORD thread) {
    for (const HWND window : WindowsOf(thread))
        if (ClassOf(window) == L"#32768") return window;
    return nullptr;
}

bool IsFileDialog(HWND window) {
    return ClassOf(window) == kDialogClass && GetDlgItem(window, cmb1) != nullptr &&
           FileNameField(window) != nullptr;
}

HWND WaitForMainWindow(DWORD thread) {
    return WaitForWindow(thread, "the main window",
                         [](HWND window) { return ClassOf(window) == L"frmStart"; });
}

BoxOnScreen WaitForBox(DWORD thread) {
    return BoxOnScreen(WaitForWindow(thread, "a message box", &IsMessageBox));
}

DialogOnScreen WaitForDialog(DWORD thread, const std::wstring& caption) {
    return DialogOnScreen(WaitForWindow(thread, "the dialog \"" + Narrow(caption) + "\"", [&](HWND window) {
        return ClassOf(window) == kDialogClass && !IsMessageBox(window) && TextOf(window) == caption;
    }));
}

FileDialogOnScreen WaitForFileDialog(DWORD thread) {
    return FileDialogOnScreen(WaitForWindow(thread, "a file dialog", &IsFileDialog));
}

std::wstring BoxOnScreen::Text() const {
    for (const HWND child : ChildrenOf(box_))
        if (ClassOf(child) == L"Static" && !IsPicture(child)) return TextOf(child);
    return {};
}

std::vector<int> BoxOnScreen::Buttons() const {
    std::vector<int> ids;
    for (const HWND child : ChildrenOf(box_))
        if (ClassOf(child) == L"Button" && IsWindowVisible(child)) ids.push_back(GetDlgCtrlID(child));
    return ids;
}

BoxIcon BoxOnScreen::Icon() const {
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

void BoxOnScreen::Press(int button) const {
    const HWND control = GetDlgItem(box_, button);
    if (control == nullptr)
        throw std::runtime_error("the message box has no button " + std::to_string(button));
    PostMessageW(control, BM_CLICK, 0, 0);
    WaitUntilGone(box_);
}

HWND DialogOnScreen::Control(int id) const {
    const HWND control = GetDlgItem(dialog_, id);
    if (control == nullptr) throw std::runtime_error("the dialog has no control " + std::to_string(id));
    return control;
}

void DialogOnScreen::SetText(int id, const std::wstring& text) const {
    SendMessageW(Control(id), EM_SETSEL, 0, -1);
    SendMessageW(Control(id), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
}

void DialogOnScreen::Pick(int combo_id, int index) const {
    const HWND combo = Control(combo_id);
    SendMessageW(combo, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
    SendMessageW(dialog_, WM_COMMAND, MAKEWPARAM(combo_id, CBN_SELCHANGE), reinterpret_cast<LPARAM>(combo));
}

std::vector<std::wstring> DialogOnScreen::ComboItems(int combo_id) const {
    return ItemsOf(Control(combo_id));
}

std::pair<int, int> DialogOnScreen::Selection(int id) const {
    DWORD start = 0;
    DWORD end = 0;
    SendMessageW(Control(id), EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    return {static_cast<int>(start), static_cast<int>(end)};
}

int DialogOnScreen::Focus() const {
    const DWORD thread = GetWindowThreadProcessId(dialog_, nullptr);
    HWND focus = nullptr;
    // While a window comes to the front the window manager can leave nobody with the focus for a moment.
    Eventually([&] { return (focus = FocusOfThread(thread)) != nullptr; });
    return focus != nullptr ? GetDlgCtrlID(focus) : 0;
}

LOGFONTW DialogOnScreen::Font(int id) const {
    LOGFONTW description{};
    EXPECT_NE(GetObjectW(reinterpret_cast<HFONT>(SendMessageW(Control(id), WM_GETFONT, 0, 0)),
                         sizeof description, &description),
              0);
    return description;
}

std::vector<std::wstring> FileDialogOnScreen::Filters() const {
    return ItemsOf(GetDlgItem(dialog_, cmb1));
}

std::wstring FileDialogOnScreen::FileName() const {
    return TextOf(FileNameField(dialog_));
}

std::wstring FileDialogOnScreen::Folder() const {
    wchar_t path[MAX_PATH] = L"";
    SendMessageW(dialog_, CDM_GETFOLDERPATH, MAX_PATH, reinterpret_cast<LPARAM>(path));
    return path;
}

void FileDialogOnScreen::TypeAndPressOk(const std::wstring& path) const {
    SendMessageW(FileNameField(dialog_), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(path.c_str()));
    PostMessageW(GetDlgItem(dialog_, IDOK), BM_CLICK, 0, 0);
}

}  // namespace lindrel::testing
