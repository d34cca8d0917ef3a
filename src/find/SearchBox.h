// The search box: passes the text to a web service if one is chosen, and otherwise steps through the entries
// of the shown category whose site names contain it.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "book/OpenBook.h"
#include "pictures/PictureButton.h"
#include "resources/resource.h"
#include "window/Control.h"
#include "window/Owned.h"
#include "window/Subclass.h"
#include "window/ToolTips.h"

namespace lindrel {

class SearchBox {
  public:
    SearchBox(const OpenBook& open, ToolTips& tool_tips) : open_(open), tool_tips_(tool_tips) {}

    // Creates the controls on a window, in tab order. Throws SystemFault.
    void Create(HWND window);
    // Loads the button's picture for a resolution. Throws SystemFault and keeps the old one if it cannot.
    void ApplyResolution(UINT dpi) { Image1.SetPicture(IDI_Image1, PictureSize(dpi)); }

    // WM_COMMAND of the window. True if the id is that of one of these controls.
    bool OnCommand(int id, int event);
    bool HasFocus() const { return txtFind.HasFocus(); }

    // Called with the position of a hit in the shown category. To be set before the first search.
    std::function<void(int position)> Found;

  private:
    void Image1_Click();
    // True if the text box must not get the character.
    bool txtFind_KeyPress(wchar_t KeyAscii);
    // Only a new text starts the search anew. After a tab change it goes on from the old position, as users
    // know it.
    void txtFind_Change() { FindPosition = 0; }
    void txtFind_GotFocus() const { txtFind.SelectAll(); }
    std::optional<LRESULT> OnFrameMessage(UINT message, WPARAM wparam, LPARAM lparam);
    // In pixels of the frame; the caption is part of it.
    Owned<HRGN> BorderOfFrame() const;
    std::optional<LRESULT> OnTextMessage(UINT message, WPARAM wparam, LPARAM lparam);

    const OpenBook& open_;
    ToolTips& tool_tips_;
    HWND window_ = nullptr;
    HWND FrameSearch = nullptr;
    ComboBox cmbFinders;
    TextBox txtFind;
    PictureButton Image1;
    Subclass frame_messages_;
    Subclass text_messages_;
    std::int16_t FindPosition = 0;  // of the last hit; the search goes on after it
};

}  // namespace lindrel
