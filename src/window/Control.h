// Thin, typed wrappers of the controls in a window or dialog. They own nothing and are cheap to copy.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "window/Windows.h"

namespace lindrel {

// The text of a window, of any length; also of another process's control.
std::wstring TextOf(HWND window);

// The text with a line break after every `length` characters: for an address, which has no blanks to break it
// at and may be longer than the screen is wide.
std::wstring InLines(std::wstring text, std::size_t length);

// Creates a visible child window of size 0. `style` and `extended_style` are WS_ values and those of its
// class; WS_CHILD and WS_VISIBLE are added. Throws SystemFault if Windows cannot create it.
HWND CreateControl(HWND parent, const wchar_t* window_class, const wchar_t* text, DWORD style, int id,
                   DWORD extended_style = 0);

class Control {
  public:
    Control() = default;
    explicit Control(HWND handle) : handle_(handle) {}

    HWND Handle() const { return handle_; }
    std::wstring Text() const { return TextOf(handle_); }
    void SetText(std::wstring_view text) const { SetWindowTextW(handle_, std::wstring(text).c_str()); }
    bool IsEmpty() const { return GetWindowTextLengthW(handle_) == 0; }
    void Enable(bool enabled) const { EnableWindow(handle_, enabled); }
    void Show(bool shown) const { ShowWindow(handle_, shown ? SW_SHOW : SW_HIDE); }
    void SetFocus() const { ::SetFocus(handle_); }
    bool HasFocus() const { return GetFocus() == handle_; }
    // Of a line of text in the control's font, in pixels; 0 if Windows cannot tell.
    int WidthOf(std::wstring_view text) const;

  protected:
    // For classes that attach to a window later and detach when it is destroyed.
    void Wrap(HWND handle) { handle_ = handle; }
    LRESULT Send(UINT message, WPARAM wparam = 0, LPARAM lparam = 0) const {
        return SendMessageW(handle_, message, wparam, lparam);
    }
    // Adds a line to a list; `message` is CB_ADDSTRING or LB_ADDSTRING. Throws SystemFault.
    void AddLine(UINT message, std::wstring_view text) const;

  private:
    HWND handle_ = nullptr;
};

class TextBox : public Control {
  public:
    using Control::Control;

    // Selects `length` characters from the 0-based start; both are clamped to the text. The caret is at the
    // end.
    void Select(int start, int length) const;
    void SelectAll() const { Select(0, GetWindowTextLengthW(Handle())); }
    std::wstring SelectedText() const;
    // Whether the text is not wider than the box.
    bool ShowsWholeText() const;
    // The grey text that the box shows while it is empty.
    void SetHint(const std::wstring& text) const {
        Send(EM_SETCUEBANNER, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
    }
};

class CheckBox : public Control {  // option buttons too
  public:
    using Control::Control;

    bool IsChecked() const { return Send(BM_GETCHECK) == BST_CHECKED; }
    void SetChecked(bool checked) const { Send(BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED); }
};

// Items of combo and list boxes are numbered from 0.
class ComboBox : public Control {
  public:
    using Control::Control;

    // Throws SystemFault if there is no memory for the item.
    void Add(std::wstring_view text) const { AddLine(CB_ADDSTRING, text); }
    int Count() const { return static_cast<int>(Send(CB_GETCOUNT)); }
    // -1 if no item is selected.
    int Selected() const { return static_cast<int>(Send(CB_GETCURSEL)); }
    // Selects no item if the index is out of range.
    void Select(int index) const { Send(CB_SETCURSEL, static_cast<WPARAM>(index)); }
    // Empty if the index is out of range.
    std::wstring Item(int index) const;
    // Makes the drop-down list as wide as its longest item, but never narrower than the box.
    void WidenList() const;
};

class ListBox : public Control {  // with multiple selection
  public:
    using Control::Control;

    // Throws SystemFault if there is no memory for the item.
    void Add(std::wstring_view text) const { AddLine(LB_ADDSTRING, text); }
    int SelectedCount() const { return static_cast<int>(Send(LB_GETSELCOUNT)); }
    // False if the index is out of range.
    bool IsSelected(int index) const { return Send(LB_GETSEL, static_cast<WPARAM>(index)) > 0; }
};

// Tabs are numbered from 1.
class TabStrip : public Control {
  public:
    using Control::Control;

    // Throws SystemFault if Windows cannot add the tab.
    void Add(std::wstring_view caption) const;
    void SetCaption(int position, std::wstring_view caption) const;
    int Selected() const { return TabCtrl_GetCurSel(Handle()) + 1; }
    // Sends the parent no notification.
    void Select(int position) const { TabCtrl_SetCurSel(Handle(), position - 1); }
};

class StatusBar : public Control {
  public:
    using Control::Control;

    // Panels are numbered from 1.
    void SetPanel(int panel, std::wstring_view text) const {
        const std::wstring terminated(text);
        Send(SB_SETTEXTW, static_cast<WPARAM>(panel - 1), reinterpret_cast<LPARAM>(terminated.c_str()));
    }
    // Right edges of the panels in pixels; -1 stands for the end of the bar.
    void SetPanels(const std::vector<int>& right_edges) const {
        Send(SB_SETPARTS, right_edges.size(), reinterpret_cast<LPARAM>(right_edges.data()));
    }
};

}  // namespace lindrel
