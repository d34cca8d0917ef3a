// Thin, typed wrappers of windows that live in a form or dialog. They own nothing and are cheap to copy.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "window/Windows.h"

namespace lindrel {

// The text of a window, of any length; also of another process' control.
std::wstring TextOf(HWND window);

// A visible child window, without a size until it is placed. `style` and `extended_style` are the WS_ values
// and those of its class beside WS_CHILD and WS_VISIBLE. Throws SystemFault when the system cannot make
// it.
HWND CreateControl(HWND parent, const wchar_t* window_class, const wchar_t* text, DWORD style, int id,
                   DWORD extended_style = 0);

class Control {
  public:
    Control() = default;
    explicit Control(HWND handle) : handle_(handle) {}

    HWND Handle() const { return handle_; }
    std::wstring Text() const { return TextOf(handle_); }
    void SetText(std::wstring_view text) const;
    bool IsEmpty() const { return GetWindowTextLengthW(handle_) == 0; }
    void Enable(bool enabled) const;
    void Show(bool shown) const;
    void SetFocus() const;
    bool HasFocus() const { return GetFocus() == handle_; }

  protected:
    // For controls that are attached to a window later, and detached when it is destroyed.
    void Wrap(HWND handle) { handle_ = handle; }
    LRESULT Send(UINT message, WPARAM wparam = 0, LPARAM lparam = 0) const {
        return SendMessageW(handle_, message, wparam, lparam);
    }

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
    void SetHint(const std::wstring& text) const;
};

class CheckBox : public Control {  // option buttons too
  public:
    using Control::Control;

    bool IsChecked() const { return Send(BM_GETCHECK) == BST_CHECKED; }
    void SetChecked(bool checked) const;
};

class ComboBox : public Control {
  public:
    using Control::Control;

    void Add(std::wstring_view text) const;
    int Count() const { return static_cast<int>(Send(CB_GETCOUNT)); }
    // 0-based; -1 when nothing is selected.
    int Selected() const { return static_cast<int>(Send(CB_GETCURSEL)); }
    void Select(int index) const;
    std::wstring Item(int index) const;
    // Makes the drop-down list as wide as its longest item, and never narrower than the box.
    void WidenList() const;
};

class ListBox : public Control {  // with multiple selection
  public:
    using Control::Control;

    void Add(std::wstring_view text) const;
    int SelectedCount() const { return static_cast<int>(Send(LB_GETSELCOUNT)); }
    // 0-based.
    bool IsSelected(int line) const { return Send(LB_GETSEL, static_cast<WPARAM>(line)) > 0; }
};

class TabStrip : public Control {
  public:
    using Control::Control;

    // All positions are 1-based.
    void Add(std::wstring_view caption) const;
    void SetCaption(int position, std::wstring_view caption) const;
    int Selected() const;
    // Raises no click.
    void Select(int position) const;
};

class StatusBar : public Control {
  public:
    using Control::Control;

    // 1-based panels.
    void SetPanel(int panel, std::wstring_view text) const;
    // Right edges of the panels in pixels; -1 reaches to the end.
    void SetPanels(const std::vector<int>& right_edges) const;
};

}  // namespace lindrel
