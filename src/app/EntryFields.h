// Name and address of the entry that the user picked last, and the button that opens the address.
#pragma once

#include <optional>
#include <string>

#include "pictures/PictureButton.h"
#include "resources/resource.h"
#include "window/Control.h"
#include "window/Subclass.h"
#include "window/ToolTips.h"

namespace lindrel {

class EntryFields {
  public:
    explicit EntryFields(ToolTips& tool_tips) : tool_tips_(tool_tips) {}

    // Creates the controls on a window, in tab order. Throws SystemFault.
    void Create(HWND window);
    // Loads the button's picture for a resolution. Throws SystemFault and keeps the old one if it cannot.
    void ApplyResolution(UINT dpi) { picGo.SetPicture(IDI_picGo, LargePictureSize(dpi)); }

    void Show(const std::wstring& name, const std::wstring& address);
    void Clear() {
        if (HasName() || HasAddress()) Show({}, {});
    }
    // Gives each field whose text does not fit a tool tip with the whole text. To be called when their sizes
    // have changed.
    void ShowWholeTexts();
    bool HasName() const { return !txtSite.IsEmpty(); }
    bool HasAddress() const { return !txtURL.IsEmpty(); }

    // WM_COMMAND of the window. True if the id is that of one of these controls.
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
