// The search box: asks a service on the internet when one is chosen, and else goes through the site names of
// the shown category, one hit after the other.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "book/OpenBook.h"
#include "pictures/PictureButton.h"
#include "window/Control.h"
#include "window/Subclass.h"
#include "window/ToolTips.h"

namespace lindrel {

class SearchBox {
  public:
    SearchBox(const OpenBook& open, ToolTips& tool_tips) : open_(open), tool_tips_(tool_tips) {}

    // Makes the controls on a window, in their tab order. Throws SystemFault when the system cannot.
    void Create(HWND window);
    // Shows the button's picture at a resolution. Throws SystemFault when it cannot be loaded.
    void ApplyResolution(UINT dpi);

    // WM_COMMAND of the window. True when the id is that of one of these controls.
    bool OnCommand(int id, int event);
    bool HasFocus() const { return txtFind.HasFocus(); }

    // A hit: the row at this 1-based position of the shown category.
    std::function<void(int position)> Found;

  private:
    void Image1_Click();
    void SearchTheWeb(const std::wstring& text) const;
    void SearchTheBook(const std::wstring& text);
    bool txtFind_KeyPress(wchar_t KeyAscii);
    void txtFind_Change();
    void txtFind_GotFocus() const;
    std::optional<LRESULT> OnTextMessage(UINT message, WPARAM wparam, LPARAM lparam);

    const OpenBook& open_;
    ToolTips& tool_tips_;
    HWND window_ = nullptr;
    ComboBox cmbFinders;
    TextBox txtFind;
    PictureButton Image1;
    Subclass text_messages_;
    std::int16_t FindPosition = 0;  // 0-based place in the category where the next search starts
};

}  // namespace lindrel
