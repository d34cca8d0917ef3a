// Name and address of the entry that the user picked last, and the button that opens the address.
#pragma once

#include <string>

#include "pictures/PictureButton.h"
#include "window/Control.h"
#include "window/Subclass.h"
#include "window/ToolTips.h"

namespace lindrel {

class EntryFields {
  public:
    explicit EntryFields(ToolTips& tool_tips) : tool_tips_(tool_tips) {}

    // Makes the controls on a window, in their tab order. Throws SystemFault when the system cannot.
    void Create(HWND window);
    // Shows the button's picture at a resolution. Throws SystemFault when it cannot be loaded.
    void ApplyResolution(UINT dpi);

    void Show(const std::wstring& name, const std::wstring& address);
    void Clear() {
        if (HasName() || HasAddress()) Show({}, {});
    }
    // Gives the fields whose texts do not fit tips with the whole. To be called when their sizes have
    // changed.
    void ShowWholeTexts();
    bool HasName() const { return !txtSite.IsEmpty(); }
    bool HasAddress() const { return !txtURL.IsEmpty(); }

    // WM_COMMAND of the window. True when the id is that of one of these controls.
    bool OnCommand(int id) const;
    // Opens the address, if there is one.
    void picGo_Click() const;

  private:
    void txtURL_DblClick() const;
    void txtURL_KeyPress(wchar_t KeyAscii) const;
    std::optional<LRESULT> OnUrlMessage(UINT message, WPARAM wparam, LPARAM lparam) const;

    ToolTips& tool_tips_;
    HWND window_ = nullptr;
    TextBox txtSite, txtURL;
    PictureButton picGo;
    Subclass url_messages_;
};

}  // namespace lindrel
